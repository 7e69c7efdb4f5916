/// \file
/// The hands of a user on the system's own mouse and keyboard.
#pragma once

#include "values/text.h"
#include "worlds/win32/shift_keys.h"

#include <functional>

namespace lumtex::testing {

/// Input goes in where that of devices does, and is delivered when a call returns. While one lives, two
/// presses are a double click only where they are said to be.
class UserInput {
  public:
    /// `deliver` lets all messages of the thread through.
    explicit UserInput(std::function<void()> deliver);
    UserInput(const UserInput&) = delete;
    UserInput& operator=(const UserInput&) = delete;
    /// Lets all buttons and shift keys go.
    ~UserInput();

    // The shift keys of these count for the mouse alone: no window hears of them.

    /// On the screen.
    void move(POINT to, Integer shift);
    void press(MouseButton button, Integer shift);
    /// The second press of a double click; the first one was the last press before it.
    void doublePress(MouseButton button, Integer shift);
    void release(MouseButton button, Integer shift);
    /// 120 a notch, positive away from the user.
    void wheel(Long rotation, Integer shift);

    void keyDown(Integer keyCode);
    void keyUp(Integer keyCode);
    /// Each unit as its key goes down and up.
    void type(StringView text);

  private:
    void mouse(DWORD what, Integer shift, Long data = 0);
    /// A display whose own keyboard has them up lets the shift keys go as the mouse moves.
    void keepHeld();

    std::function<void()> deliver_;
    Integer held_ = 0; ///< the shift keys that are down
    int doubleClickWidth_;
    UINT doubleClickTime_;
};

} // namespace lumtex::testing
