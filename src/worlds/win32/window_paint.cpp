/// What the screen, or a printer, gets to see of a window.
#include "worlds/win32/win32_guide_line.h"
#include "worlds/win32/win32_text_box.h"
#include "worlds/win32/win32_window.h"

namespace lumtex::win32 {

Win32Window::Answer Win32Window::answerPaint(const WindowMessage& message) {
    switch (message.number) {
    case WM_PAINT: {
        PAINTSTRUCT paint{};
        if (HDC target = BeginPaint(message.window, &paint)) {
            paintOn(target);
            EndPaint(message.window, &paint);
        }
        return 0;
    }
    case WM_ERASEBKGND:
        return TRUE;
    case WM_PRINTCLIENT:
        paintOn(reinterpret_cast<HDC>(message.wParam));
        return 0;
    case WM_PRINT:
        if ((message.lParam & PRF_CHECKVISIBLE) != 0 && !IsWindowVisible(message.window))
            return 0;
        paintOn(reinterpret_cast<HDC>(message.wParam));
        if ((message.lParam & PRF_CHILDREN) != 0)
            printChildren(reinterpret_cast<HDC>(message.wParam), message.lParam);
        return 0;
    case WM_CTLCOLOREDIT:
        return colorOfBox(message);
    default:
        return {};
    }
}

void Win32Window::paintOn(HDC target) const {
    surface_->present(target);
    for (const Win32GuideLine* guide : guides_) {
        if (guide->Visible())
            guide->paintOn(target);
    }
}

void Win32Window::printChildren(HDC target, LPARAM flags) const {
    // From the lowest to the topmost one.
    HWND first = GetWindow(hwnd_, GW_CHILD);
    for (HWND child = first != nullptr ? GetWindow(first, GW_HWNDLAST) : nullptr; child != nullptr;
         child = GetWindow(child, GW_HWNDPREV)) {
        if ((GetWindowLongPtrW(child, GWL_STYLE) & WS_VISIBLE) == 0)
            continue;
        RECT area{};
        GetWindowRect(child, &area);
        MapWindowPoints(nullptr, hwnd_, reinterpret_cast<POINT*>(&area), 2);
        const int saved = SaveDC(target);
        IntersectClipRect(target, area.left, area.top, area.right, area.bottom);
        OffsetViewportOrgEx(target, area.left, area.top, nullptr);
        SendMessageW(child,
                     WM_PRINT,
                     reinterpret_cast<WPARAM>(target),
                     (flags & ~LPARAM{PRF_CHECKVISIBLE}) | PRF_CLIENT | PRF_NONCLIENT | PRF_ERASEBKGND);
        RestoreDC(target, saved);
    }
}

Win32Window::Answer Win32Window::colorOfBox(const WindowMessage& message) {
    for (const Win32TextBox* box : boxes_) {
        if (toHWND(box->hWnd()) != reinterpret_cast<HWND>(message.lParam))
            continue;
        auto* target = reinterpret_cast<HDC>(message.wParam);
        COLORREF color = 0;
        if (SUCCEEDED(OleTranslateColor(box->ForeColor(), nullptr, &color)))
            SetTextColor(target, color);
        SetBkColor(target, GetSysColor(COLOR_WINDOW));
        return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
    }
    return {};
}

} // namespace lumtex::win32
