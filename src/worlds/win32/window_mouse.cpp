/// Mouse messages, as the control hears of them.
#include "worlds/win32/shift_keys.h"
#include "worlds/win32/win32_window.h"

#include <utility>

namespace lumtex {

namespace {

/// In pixels of the window that got the message; may lie outside it.
POINT placeOf(const WindowMessage& message) {
    return {static_cast<Integer>(LOWORD(message.lParam)), static_cast<Integer>(HIWORD(message.lParam))};
}

Integer shiftOf(const WindowMessage& message) {
    return shiftKeysIn(message.wParam, isKeyDown(VK_MENU));
}

} // namespace

Win32Window::Answer Win32Window::answerMouse(const WindowMessage& message) {
    switch (message.number) {
    case WM_MOUSEMOVE: {
        const POINT at = placeOf(message);
        client_.UserControl_MouseMove(buttonsIn(message.wParam),
                                      shiftOf(message),
                                      static_cast<Single>(at.x),
                                      static_cast<Single>(at.y));
        return 0;
    }
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        return pressed(leftButton, message.number == WM_LBUTTONDBLCLK, message);
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
        return pressed(rightButton, message.number == WM_RBUTTONDBLCLK, message);
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
        return pressed(middleButton, message.number == WM_MBUTTONDBLCLK, message);
    case WM_LBUTTONUP:
        return released(leftButton, message);
    case WM_RBUTTONUP:
        return released(rightButton, message);
    case WM_MBUTTONUP:
        return released(middleButton, message);
    case WM_MOUSEWHEEL:
        return wheelTurned(message);
    default:
        return {};
    }
}

Win32Window::Answer Win32Window::pressed(MouseButton button, bool isSecond, const WindowMessage& message) {
    HWND window = message.window;
    Win32World& world = world_;
    if (isSecond)
        world.press = {};
    ::SetCapture(window);
    // A window does not take the focus away from its own text box: an open editor stays open until the
    // control has decided what to do with it. A host's control in it is not its own.
    Win32Window& keys = keyWindow();
    if (!keys.hasBox(GetFocus()))
        keys.setFocus();
    if (of(window) != this || !takesInput())
        return 0;
    if (isSecond) {
        client_.UserControl_DblClick();
        return 0;
    }
    world.press = {window, button};
    const POINT at = placeOf(message);
    client_.UserControl_MouseDown(
        button, shiftOf(message), static_cast<Single>(at.x), static_cast<Single>(at.y));
    return 0;
}

Win32Window::Answer Win32Window::released(MouseButton button, const WindowMessage& message) {
    HWND window = message.window;
    const bool endsPress = button == world_.press.button;
    HWND pressedOn = endsPress ? std::exchange(world_.press.window, nullptr) : nullptr;
    // Before the control hears of it, so that one that wants to keep the capture asks for it again.
    if (buttonsIn(message.wParam) == noButton)
        Win32World::giveUpCapture();
    if (of(window) != this)
        return 0;
    const POINT at = placeOf(message);
    client_.UserControl_MouseUp(
        button, shiftOf(message), static_cast<Single>(at.x), static_cast<Single>(at.y));
    if (window == pressedOn && of(window) == this && takesInput() && covers(at))
        client_.UserControl_Click();
    return 0;
}

Win32Window::Answer Win32Window::wheelTurned(const WindowMessage& message) {
    POINT at = placeOf(message);
    ScreenToClient(message.window, &at);
    const auto rotation = static_cast<Integer>(HIWORD(message.wParam));
    const bool taken = client_.UserControl_Wheel(
        rotation, shiftOf(message), static_cast<Single>(at.x), static_cast<Single>(at.y));
    // The system hands what nobody took to the window around this one.
    return taken ? Answer(0) : Answer();
}

} // namespace lumtex
