/// \file
/// The mouse of a world: where it is, what it holds, and who hears of it.
#pragma once

#include "worlds/common/click_sequence.h"
#include "worlds/common/focus.h"
#include "worlds/common/window_tree.h"

#include <functional>

namespace lumtex::worlds {

/// Who gets an event is decided when it is delivered, from the place where the pointer was when it happened.
///
/// There is one capture; `ClickSequence` says when it comes and goes. However a capture ends, a move is made
/// up, so that the window that lies under the pointer by then does not miss it.
class Pointer {
  public:
    /// Something that the mouse did, as it was at that time, in pixels of the desktop.
    using Event = ClickSequence::Event;

    Pointer(WindowTree& tree, Focus& focus) : tree_(tree), focus_(focus) {}
    Pointer(const Pointer&) = delete;
    Pointer& operator=(const Pointer&) = delete;

    Point place() const { return place_; }
    Integer buttons() const { return buttons_; }
    /// What the platform says is down, which it may know better: a release can get lost to another program.
    void letButtons(Integer buttons) { buttons_ = buttons; }
    /// Was `button` pressed since it was asked for the last time?
    bool takePressed(Integer button);

    // What happens is known at once; the event is what is to be delivered.

    Event moveTo(Point place, Integer shift);
    Event press(MouseButton button, Integer shift);
    Event release(MouseButton button, Integer shift);
    Event turnWheel(Integer shift) const;

    void deliverMove(const Event& event);
    /// The move that was made up when a capture ended; goes to where the pointer is now.
    void deliverMadeUpMove(Event event);
    void deliverPress(const Event& event);
    /// In place of the second press of a double click. No click follows its release.
    void deliverDoublePress(const Event& event);
    void deliverRelease(const Event& event);
    /// Whether some window took it.
    bool deliverWheel(const Event& event, Long rotation);

    WindowHandle captured() const { return captured_; }
    /// No effect for a pane that takes no input.
    void capture(const Pane& pane);
    /// No effect unless the pane has the capture.
    void releaseCapture(const Pane& pane);
    /// `pane` takes no input any more: a capture or press within it ends.
    void forget(const Pane& pane);

    /// Takes the move that is made up when a capture ends, for `deliverMadeUpMove` when messages run next.
    std::function<void(const Event&)> onMadeUpMove;

  private:
    /// While one lives, the keys of an event that is being delivered are held.
    class Delivery;
    /// The pane that a press or release is for.
    class Target;

    Pane* targetOf(const Event& event) const;
    void endCapture();

    WindowTree& tree_;
    Focus& focus_;
    Point place_{-1, -1};
    Integer buttons_ = noButton;
    Integer pressedSince_ = noButton; ///< the last questions, one bit a button
    Integer shift_ = 0;               ///< of the event that is being delivered
    bool moveMadeUp_ = false;         ///< one waits
    WindowHandle captured_ = 0;
    ClickSequence press_;
};

} // namespace lumtex::worlds
