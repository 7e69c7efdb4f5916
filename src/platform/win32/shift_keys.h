/// \file
/// The state of the keyboard as events tell it.
#pragma once

#include "platform/win32/windows_api.h"

namespace lumtex {

/// The bits of `Shift` in mouse and key events.
enum ShiftMask : Integer {
    shiftMask = 1,
    controlMask = 2,
    altMask = 4,
};

/// As of the message that is being dealt with.
inline bool isKeyDown(int virtualKey) {
    return GetKeyState(virtualKey) < 0;
}

inline Integer shiftKeys() {
    const int shift = (isKeyDown(VK_SHIFT) ? shiftMask : 0) | (isKeyDown(VK_CONTROL) ? controlMask : 0) |
                      (isKeyDown(VK_MENU) ? altMask : 0);
    return static_cast<Integer>(shift);
}

} // namespace lumtex
