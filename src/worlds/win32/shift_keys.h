/// \file
/// The state of keys and mouse buttons as events carry it.
#pragma once

#include "platform/user_control.h"
#include "worlds/win32/windows_api.h"

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

/// The buttons that are down, by the bits of `MouseButton`. `keys` holds the system's bits, `MK_LBUTTON` and
/// so on, as mouse messages and drags carry them.
inline Integer buttonsIn(WPARAM keys) {
    const int buttons = ((keys & MK_LBUTTON) != 0 ? leftButton : 0) |
                        ((keys & MK_RBUTTON) != 0 ? rightButton : 0) |
                        ((keys & MK_MBUTTON) != 0 ? middleButton : 0);
    return static_cast<Integer>(buttons);
}

/// Shift and Control by the same bits; `alt` is not among them.
inline Integer shiftKeysIn(WPARAM keys, bool alt) {
    const int shift = ((keys & MK_SHIFT) != 0 ? shiftMask : 0) |
                      ((keys & MK_CONTROL) != 0 ? controlMask : 0) | (alt ? altMask : 0);
    return static_cast<Integer>(shift);
}

} // namespace lumtex
