/// Keys and focus, as the control hears of them.
#include "worlds/win32/shift_keys.h"
#include "worlds/win32/win32_window.h"

namespace lumtex::win32 {

Win32Window::Answer Win32Window::answerKeyboard(const WindowMessage& message) {
    switch (message.number) {
    case WM_KEYDOWN:
        client_.UserControl_KeyDown(static_cast<Integer>(message.wParam), shiftKeys());
        return 0;
    case WM_KEYUP:
        client_.UserControl_KeyUp(static_cast<Integer>(message.wParam), shiftKeys());
        return 0;
    case WM_SYSKEYDOWN:
        // The system makes menus of these, so it gets them too.
        client_.UserControl_KeyDown(static_cast<Integer>(message.wParam), shiftKeys());
        return {};
    case WM_SYSKEYUP:
        client_.UserControl_KeyUp(static_cast<Integer>(message.wParam), shiftKeys());
        return {};
    case WM_CHAR:
        client_.UserControl_KeyPress(static_cast<Integer>(message.wParam));
        return 0;
    case WM_SETFOCUS:
        client_.UserControl_GotFocus();
        return 0;
    case WM_KILLFOCUS:
        client_.UserControl_LostFocus();
        return 0;
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS | DLGC_WANTCHARS;
    default:
        return {};
    }
}

} // namespace lumtex::win32
