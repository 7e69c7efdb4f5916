/// Mouse messages, as the control hears of them.
#include "worlds/win32/shift_keys.h"
#include "worlds/win32/win32_window.h"

namespace lumtex::win32 {

namespace {

/// In pixels of the window that got the message; may lie outside it.
POINT placeOf(const WindowMessage& message) {
    return {static_cast<Integer>(LOWORD(message.lParam)), static_cast<Integer>(HIWORD(message.lParam))};
}

/// The message that is dealt with came of a finger or a pen: so the system signs those.
bool isMadeFromTouch() {
    constexpr LPARAM signature = 0xFF515700;
    constexpr LPARAM signedPart = 0xFFFFFF00;
    return (GetMessageExtraInfo() & signedPart) == signature;
}

Integer shiftOf(const WindowMessage& message) {
    return shiftKeysIn(message.wParam, isKeyDown(VK_MENU));
}

worlds::ClickSequence::Event pressEvent(MouseButton button, const WindowMessage& message) {
    const POINT at = placeOf(message);
    return {{at.x, at.y}, button, buttonsIn(message.wParam), shiftOf(message)};
}

} // namespace

Win32Window::Answer Win32Window::answerMouse(const WindowMessage& message) {
    switch (message.number) {
    case WM_MOUSEMOVE: {
        const Integer shift = shiftOf(message);
        world_.earlyPresses.move(hWnd(), [message, shift] {
            const POINT at = placeOf(message);
            if (Win32Window* const self = of(message.window))
                self->client_.UserControl_MouseMove(
                    buttonsIn(message.wParam), shift, static_cast<Single>(at.x), static_cast<Single>(at.y));
        });
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

class Win32Window::PressTarget final : public worlds::ClickSequence::Target {
  public:
    explicit PressTarget(Win32Window& window) : window_(window), hwnd_(window.hwnd_) {}

    WindowHandle handle() const override { return fromHWND(hwnd_); }
    void capture() override { ::SetCapture(hwnd_); }
    bool ownBoxHasKeys() const override { return window_.keyWindow().hasBox(GetFocus()); }
    void takeKeys() override { window_.keyWindow().setFocus(); }

    bool isThere() const override { return of(hwnd_) == &window_; }
    bool takesInput() const override { return isThere() && window_.takesInput(); }
    bool covers(Point at) const override { return isThere() && window_.covers({at.x, at.y}); }

    void mouseDown(const worlds::ClickSequence::Event& event) override {
        window_.client_.UserControl_MouseDown(
            event.button, event.shift, static_cast<Single>(event.at.x), static_cast<Single>(event.at.y));
    }
    void doubleClick(const worlds::ClickSequence::Event& /*event*/) override {
        window_.client_.UserControl_DblClick();
    }
    void mouseUp(const worlds::ClickSequence::Event& event) override {
        window_.client_.UserControl_MouseUp(
            event.button, event.shift, static_cast<Single>(event.at.x), static_cast<Single>(event.at.y));
    }
    void click() override { window_.client_.UserControl_Click(); }

  private:
    Win32Window& window_;
    HWND hwnd_;
};

Win32Window::Answer Win32Window::pressed(MouseButton button, bool isSecond, const WindowMessage& message) {
    const worlds::ClickSequence::Event event = pressEvent(button, message);
    const bool isEarly = isMadeFromTouch() || world_.tickIsLate();
    world_.earlyPresses.press(hWnd(), isEarly, [event, isSecond, window = message.window] {
        Win32Window* const self = of(window);
        if (self == nullptr)
            return;
        PressTarget target(*self);
        if (isSecond)
            self->world_.press.pressAgain(&target, event);
        else
            self->world_.press.press(&target, event);
    });
    return 0;
}

Win32Window::Answer Win32Window::released(MouseButton button, const WindowMessage& message) {
    const worlds::ClickSequence::Event event = pressEvent(button, message);
    world_.earlyPresses.other(hWnd(), [event, window = message.window] {
        Win32Window* const self = of(window);
        if (self == nullptr)
            return;
        PressTarget target(*self);
        self->world_.press.release(&target, event, Win32World::giveUpCapture);
    });
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

} // namespace lumtex::win32
