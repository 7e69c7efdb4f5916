/// \file
/// The state of keys and mouse buttons as events carry it.
#pragma once

#include "platform/keys.h"
#include "platform/user_control.h"
#include "worlds/win32/windows_api.h"

namespace lumtex::win32 {

/// As of the message that is being dealt with.
inline bool isKeyDown(int virtualKey) {
    return GetKeyState(virtualKey) < 0;
}

inline Integer shiftKeys() {
    const int shift = (isKeyDown(VK_SHIFT) ? keys::shiftMask : 0) |
                      (isKeyDown(VK_CONTROL) ? keys::controlMask : 0) |
                      (isKeyDown(VK_MENU) ? keys::altMask : 0);
    return static_cast<Integer>(shift);
}

/// The buttons that are down, by the bits of `MouseButton`. `held` has the system's bits, `MK_LBUTTON` and
/// so on, as mouse messages and drags carry them.
inline Integer buttonsIn(WPARAM held) {
    const int buttons = ((held & MK_LBUTTON) != 0 ? leftButton : 0) |
                        ((held & MK_RBUTTON) != 0 ? rightButton : 0) |
                        ((held & MK_MBUTTON) != 0 ? middleButton : 0);
    return static_cast<Integer>(buttons);
}

/// Shift and Control by the same bits; `alt` is not among them.
inline Integer shiftKeysIn(WPARAM held, bool alt) {
    const int shift = ((held & MK_SHIFT) != 0 ? keys::shiftMask : 0) |
                      ((held & MK_CONTROL) != 0 ? keys::controlMask : 0) | (alt ? keys::altMask : 0);
    return static_cast<Integer>(shift);
}

} // namespace lumtex::win32
