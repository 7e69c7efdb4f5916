/// \file
/// How press, capture, focus and click follow one another, in every world alike.
#pragma once

#include "platform/window.h"

#include <functional>

namespace lumtex::worlds {

/// The press that waits for its release to become a click.
///
/// A press takes the capture, then the keyboard, then goes to the window; the second press of a double click
/// is its only event, and no click follows. The release of the last button gives up the capture before the
/// window hears of it, so that one that wants to keep it asks for it again; a click follows if press and
/// release were of one button, on one window, which still takes input and lies under the pointer.
///
/// Each step may run host code, after which the window may have gone.
class ClickSequence {
  public:
    struct Event {
        Point at;                   ///< as `Target` understands it
        Integer button = noButton;  ///< the one that went down or up
        Integer buttons = noButton; ///< those that are down afterwards
        Integer shift = 0;
    };

    /// What the rules ask of the window that an event is for.
    class Target {
      public:
        Target() = default;
        Target(const Target&) = delete;
        Target& operator=(const Target&) = delete;
        virtual ~Target() = default;

        /// Stays the same when the window has gone.
        virtual WindowHandle handle() const = 0;
        virtual void capture() = 0;
        /// Is the keyboard with a text box of the window that a press on this one gives it to?
        virtual bool ownBoxHasKeys() const = 0;
        virtual void takeKeys() = 0;

        virtual bool isThere() const = 0;
        /// False for a window that has gone, as is `covers`.
        virtual bool takesInput() const = 0;
        virtual bool covers(Point at) const = 0;

        virtual void mouseDown(const Event& event) = 0;
        virtual void doubleClick(const Event& event) = 0;
        virtual void mouseUp(const Event& event) = 0;
        virtual void click() = 0;
    };

    // `target` is null if no window takes input.

    void press(Target* target, const Event& event);
    void pressAgain(Target* target, const Event& event);
    /// `endCapture` gives up the capture, whoever has it.
    void release(Target* target, const Event& event, const std::function<void()>& endCapture);

    /// The window whose press waits; 0 for none.
    WindowHandle window() const { return window_; }
    /// No click comes of the press that waits.
    void forget() { window_ = 0; }

  private:
    static bool begin(Target* target);

    WindowHandle window_ = 0;
    Integer button_ = noButton;
};

} // namespace lumtex::worlds
