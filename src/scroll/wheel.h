/// \file
/// The receiver of the mouse wheel: what it takes, and in which unit it passes it on.
#pragma once

#include "platform/runtime.h"
#include "platform/window.h"

#include <functional>

namespace lumtex {

/// Turns the wheel messages of one window into `WheelScroll`. How they come from the platform is its caller's
/// affair. The runtime must outlive it.
class Wheel {
  public:
    /// `Rotation` is in notches, positive away from the user.
    using WheelScroll = std::function<void(Integer& Rotation, Integer& Keys, Single& X, Single& Y)>;

    Wheel(Runtime& runtime, WheelScroll wheelScroll);
    Wheel(const Wheel&) = delete;
    Wheel& operator=(const Wheel&) = delete;
    ~Wheel() { UserControl_Terminate(); }

    /// The window to listen to. A new one counts from the next time that the wheel is enabled while it
    /// listens to none.
    WindowHandle hWndCapture() const { return hWndCapture_; }
    void lethWndCapture(WindowHandle window) { hWndCapture_ = window; }

    /// Begins to listen; nothing without a window.
    void EnableWheel();
    /// Nothing unless enabled.
    void DisableWheel();
    bool isListeningTo(WindowHandle window) const { return window != 0 && window == listensTo_; }

    /// A wheel message of `hWnd`: 120 a notch, high-resolution wheels less. True: the message was for this
    /// receiver, and nobody else gets it.
    bool WndProc(WindowHandle hWnd, Long delta, Integer Keys, Single X, Single Y);

    void UserControl_Terminate() { DisableWheel(); }

  private:
    Runtime& runtime_;
    WheelScroll wheelScroll_;
    WindowHandle hWndCapture_ = 0;
    WindowHandle listensTo_ = 0;
    bool active_ = false;
};

} // namespace lumtex
