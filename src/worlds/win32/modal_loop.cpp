/// A form that the rest of the program waits for.
#include "worlds/win32/win32_window.h"

#include <vector>

namespace lumtex::win32 {

namespace {

/// Keeps the thread's other windows from taking input, and gives it back to them whatever happens.
class OthersDisabled {
  public:
    explicit OthersDisabled(HWND form) : form_(form), active_(GetActiveWindow()) {
        EnumThreadWindows(GetCurrentThreadId(), disable, reinterpret_cast<LPARAM>(this));
    }
    OthersDisabled(const OthersDisabled&) = delete;
    OthersDisabled& operator=(const OthersDisabled&) = delete;
    ~OthersDisabled() {
        for (HWND window : disabled_)
            EnableWindow(window, TRUE);
        if (IsWindow(active_))
            SetActiveWindow(active_);
    }

    HWND active() const { return active_; }

  private:
    static BOOL CALLBACK disable(HWND window, LPARAM self) {
        auto& others = *reinterpret_cast<OthersDisabled*>(self);
        if (window != others.form_ && IsWindowVisible(window) && IsWindowEnabled(window)) {
            others.disabled_.push_back(window);
            EnableWindow(window, FALSE);
        }
        return TRUE;
    }

    HWND form_;
    HWND active_;
    std::vector<HWND> disabled_;
};

bool isOpen(HWND form) {
    const Win32Window* window = Win32Window::of(form);
    return window != nullptr && window->Visible();
}

} // namespace

void Win32World::showModal(Window& form) {
    HWND window = toHWND(form.hWnd());
    const Win32Runtime::ModalSpan span(ownRuntime_);
    const OthersDisabled others(window);
    // The owner keeps the form above itself.
    SetWindowLongPtrW(window, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(others.active()));
    form.letVisible(true);
    if (isOpen(window)) {
        SetForegroundWindow(window);
        form.setFocus();
    }
    MSG message{};
    while (isOpen(window)) {
        const BOOL found = GetMessageW(&message, nullptr, 0, 0);
        if (found <= 0) {
            // The program is to end: its own loop must hear of that.
            if (found == 0)
                PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    if (isOpen(window))
        form.letVisible(false);
}

} // namespace lumtex::win32
