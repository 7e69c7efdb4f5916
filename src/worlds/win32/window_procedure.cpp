/// What becomes of a message to one of our windows.
#include "worlds/win32/com_ref.h"
#include "worlds/win32/win32_text_box.h"
#include "worlds/win32/win32_window.h"

namespace lumtex::win32 {

LRESULT CALLBACK Win32Window::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    Win32Window* self = of(window);
    if (self == nullptr)
        return DefWindowProcW(window, message, wParam, lParam);
    const ComRef<IUnknown> alive(self->world_.owner);
    Answer answer;
    try {
        answer = self->answer({window, message, wParam, lParam});
    } catch (...) {
        // The border of the system: no failure passes, and what can fail has reported it already.
        return 0;
    }
    return answer ? *answer : DefWindowProcW(window, message, wParam, lParam);
}

Win32Window::Answer Win32Window::answer(const WindowMessage& message) {
    if (message.number == WM_DESTROY)
        dropPlace_.reset();
    if (message.number == WM_NCDESTROY) {
        detach();
        return {};
    }
    if (world_.onMessage) {
        if (const Answer foreign = world_.onMessage(message))
            return foreign;
    }
    if (const Answer painted = answerPaint(message))
        return painted;
    if (world_.isQuiet())
        return {};
    if (message.number >= WM_MOUSEFIRST && message.number <= WM_MOUSELAST)
        return answerMouse(message);
    if ((message.number >= WM_KEYFIRST && message.number <= WM_KEYLAST) || message.number == WM_SETFOCUS ||
        message.number == WM_KILLFOCUS || message.number == WM_GETDLGCODE)
        return answerKeyboard(message);
    return answerPlace(message);
}

Win32Window::Answer Win32Window::answerPlace(const WindowMessage& message) {
    switch (message.number) {
    case WM_SIZE: {
        // A size that somebody else gave; our own ones were told before.
        const Long width = LOWORD(message.lParam);
        const Long height = HIWORD(message.lParam);
        if (placing_ || message.wParam == SIZE_MINIMIZED ||
            (width == surface_->scaleWidth() && height == surface_->scaleHeight()))
            return 0;
        resizeSurface(width, height);
        InvalidateRect(message.window, nullptr, FALSE);
        client_.UserControl_Resize();
        return 0;
    }
    case WM_MOVE:
        if (!placing_)
            corner_ = {static_cast<Integer>(LOWORD(message.lParam)),
                       static_cast<Integer>(HIWORD(message.lParam))};
        return 0;
    case WM_SETCURSOR:
        if (reinterpret_cast<HWND>(message.wParam) != message.window || LOWORD(message.lParam) != HTCLIENT)
            return {};
        SetCursor(pointerShape_.cursor());
        return TRUE;
    case WM_CANCELMODE:
        if (world_.press.window() == hWnd())
            world_.press.forget();
        return {};
    case WM_CLOSE:
        letVisible(false);
        return 0;
    default:
        return {};
    }
}

} // namespace lumtex::win32
