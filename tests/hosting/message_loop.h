/// \file
/// The loop of a program that shows a control.
#pragma once

#include "worlds/win32/com_ref.h"

namespace lumtex::testing {

/// Dispatches messages until all timers that were started before have ticked. Keys are offered to `active`
/// first, if there is one, as containers do.
inline void letMessagesThrough(const win32::ComRef<IOleInPlaceActiveObject>& active = {}) {
    int ticks = 0;
    const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, nullptr);
    while (ticks < 2) {
        MSG message{};
        GetMessageW(&message, nullptr, 0, 0);
        if (message.hwnd == nullptr && message.message == WM_TIMER && message.wParam == timer)
            ++ticks;
        const bool isKey = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
        const win32::ComRef<IOleInPlaceActiveObject> asked =
            isKey ? active : win32::ComRef<IOleInPlaceActiveObject>();
        if (asked && asked->TranslateAccelerator(&message) == S_OK)
            continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    KillTimer(nullptr, timer);
}

} // namespace lumtex::testing
