/// \file
/// The receiver of the mouse wheel: what it takes, and in which unit it passes it on.
#pragma once

#include "guards/control_life.h"
#include "platform/runtime.h"
#include "platform/wheel_hook.h"
#include "platform/window.h"

#include <functional>
#include <memory>

namespace lumtex {
class World;
} // namespace lumtex

namespace lumtex::bars {

/// Turns the wheel messages of one window into `WheelScroll`. They come through a hook if the platform has
/// hooks, otherwise through the window's control. The runtime must outlive it.
class Wheel {
  public:
    /// `Rotation` is in notches, positive away from the user.
    using WheelScroll = std::function<void(Integer& Rotation, Integer& Keys, Single& X, Single& Y)>;

    Wheel(Runtime& runtime, WheelScroll wheelScroll, ControlLife* life = nullptr);
    /// Puts a hook of `world` into `parent`, which must outlive this object. `life` belongs to the
    /// control around it.
    Wheel(World& world, Window& parent, WheelScroll wheelScroll, ControlLife* life = nullptr);
    Wheel(const Wheel&) = delete;
    Wheel& operator=(const Wheel&) = delete;
    ~Wheel() { UserControl_Terminate(); }

    /// Begins to listen to `window`; nothing while it listens to one, or without a window.
    void EnableWheel(WindowHandle window);
    /// Nothing unless enabled.
    void DisableWheel();
    bool isListeningTo(WindowHandle window) const { return window != 0 && window == listensTo_; }

    /// A wheel message of `hWnd`: 120 a notch, high-resolution wheels less. True: the message was for this
    /// receiver, and nobody else gets it.
    bool WndProc(WindowHandle hWnd, Long delta, Integer Keys, Single X, Single Y);

    void UserControl_Terminate() { DisableWheel(); }

  private:
    Runtime& runtime_;
    ControlLife* life_;
    WheelScroll wheelScroll_;
    WindowHandle listensTo_ = 0;
    std::unique_ptr<WheelHook> hook_; ///< null if the platform has no hooks
};

} // namespace lumtex::bars
