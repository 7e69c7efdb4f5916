/// \file
/// The keyboard of the simulated desktop.
#pragma once

#include "platform/keys.h"
#include "worlds/common/focus.h"

namespace lumtex::headless {

/// Keys go to the pane that has the focus when they are delivered, unless it takes no input.
class Keyboard {
  public:
    explicit Keyboard(worlds::Focus& focus) : focus_(focus) {}
    Keyboard(const Keyboard&) = delete;
    Keyboard& operator=(const Keyboard&) = delete;

    /// The shift keys that are down; a press of Shift counts for itself already.
    Integer shift() const { return shift_; }
    void hold(Integer keyCode);
    void letGo(Integer keyCode);

    void deliverKeyDown(Integer keyCode, Integer shift);
    void deliverCharacter(Integer unit);
    void deliverKeyUp(Integer keyCode, Integer shift);

  private:
    worlds::Pane* target() const;

    worlds::Focus& focus_;
    Integer shift_ = 0;
};

/// The character that a key enters, as its UTF-16 unit; 0 for a key that enters none.
Integer characterOf(Integer keyCode, Integer shift);

/// A key press that enters a character.
struct KeyStroke {
    Integer keyCode = 0;
    Integer shift = 0;
};

/// `keys::packet` if no key of the basic block enters it.
KeyStroke keyStrokeOf(char16_t unit);

} // namespace lumtex::headless
