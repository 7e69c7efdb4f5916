/// \file
/// The keyboard of the simulated desktop, with the classic virtual key numbers.
#pragma once

#include "worlds/headless/focus.h"

namespace lumtex {

namespace keys {

/// Some of the key numbers, as key events carry them.
enum Code : Integer {
    backspace = 8,
    tab = 9,
    enter = 13,
    shift = 16,
    control = 17,
    alt = 18,
    escape = 27,
    space = 32,
    end = 35,
    home = 36,
    left = 37,
    up = 38,
    right = 39,
    down = 40,
    del = 46,
    /// Stands for a character that has no key of its own.
    packet = 231,
};

/// The bits of `Shift` in mouse and key events.
enum Mask : Integer {
    shiftMask = 1,
    controlMask = 2,
    altMask = 4,
};

} // namespace keys

/// Keys go to the pane that has the focus when they are delivered, unless it takes no input.
class Keyboard {
  public:
    explicit Keyboard(Focus& focus) : focus_(focus) {}
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
    Pane* target() const;

    Focus& focus_;
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

} // namespace lumtex
