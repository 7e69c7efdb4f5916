/// \file
/// Wheel messages of a window, taken before the window sees them.
#pragma once

#include "platform/window.h"
#include "values/types.h"

#include <functional>

namespace lumtex {

/// For platforms that can put something in front of a window; see `World::createWheelHook`.
class WheelHook {
  public:
    /// The window, the rotation (120 a notch, positive away from the user), the keys and the place as the
    /// platform tells them.
    using OnWheel = std::function<void(WindowHandle hWnd, Long delta, Integer Keys, Single X, Single Y)>;

    WheelHook() = default;
    WheelHook(const WheelHook&) = delete;
    WheelHook& operator=(const WheelHook&) = delete;
    virtual ~WheelHook() = default;

    /// From here on no wheel message reaches `hWnd`: it goes to `OnWheel` alone. Nothing while a hook is in
    /// force.
    virtual void Subclass(WindowHandle hWnd) = 0;
    /// Undoes it; does nothing while no hook is in force.
    virtual void UnSubclass(WindowHandle hWnd) = 0;
};

} // namespace lumtex
