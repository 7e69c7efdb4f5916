/// \file
/// A person at the simulated desktop.
#pragma once

#include "worlds/headless/desktop.h"

namespace lumtex::headless {

/// Uses mouse and keyboard as people do: goes somewhere, in more than one move, rests there for a moment, and
/// then presses. The verbs of the desktop itself take no time, and a press that comes with its move finds a
/// list that has not looked yet where the pointer is. Points are pixels of the window's surface. The desktop
/// must outlive the person.
class Person {
  public:
    /// How long a person rests on the way, which is longer than any list takes to look.
    static constexpr std::chrono::milliseconds moment{250};

    explicit Person(Desktop& desktop) : desktop_(desktop) {}

    void goTo(const Window& window, Single x, Single y);
    void click(const Window& window, Single x, Single y, MouseButton button = leftButton, Integer shift = 0);
    void
    doubleClick(const Window& window, Single x, Single y, MouseButton button = leftButton, Integer shift = 0);
    /// From the first point to the second, with the button down.
    void drag(const Window& window, Point from, Point to, MouseButton button = leftButton, Integer shift = 0);
    /// Notches, positive away from the person.
    void wheel(const Window& window, Single x, Single y, Long notches);
    /// Enters a text where the focus is.
    void type(StringView text);
    /// Down and up; a key code as `KeyDown` tells it.
    void key(Integer keyCode, Integer shift = 0);

  private:
    void goTo(Point place, Integer shift);
    void rest() { desktop_.advance(moment); }

    Desktop& desktop_;
};

} // namespace lumtex::headless
