#include "worlds/win32/win32_text_box.h"

#include "values/rounding.h"
#include "values/runtime_error.h"
#include "worlds/win32/com_ref.h"
#include "worlds/win32/screen_density.h"

#include <algorithm>
#include <utility>

namespace lumtex::win32 {

namespace {

/// None, or a window of another program, is not.
bool isOfProgram(HWND window) {
    DWORD process = 0;
    return window != nullptr && GetWindowThreadProcessId(window, &process) != 0 &&
           process == GetCurrentProcessId();
}

} // namespace

Win32TextBox::Win32TextBox(Win32World& world, Win32Window& parent, TextBoxClient& client)
    : world_(world), parent_(&parent), client_(client) {
    hwnd_ = CreateWindowExW(0,
                            L"EDIT",
                            L"",
                            WS_CHILD | WS_CLIPSIBLINGS | ES_LEFT | ES_AUTOHSCROLL,
                            0,
                            0,
                            0,
                            0,
                            toHWND(parent.hWnd()),
                            nullptr,
                            world.instance(),
                            nullptr);
    if (hwnd_ == nullptr)
        throw RuntimeError(ErrorNumber::outOfMemory);
    SetWindowLongPtrW(hwnd_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    boxProcedure_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(hwnd_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Win32TextBox::procedure)));
    parent.add(*this);
    Win32Window::raise(hwnd_);
}

Win32TextBox::~Win32TextBox() {
    if (parent_ != nullptr)
        parent_->remove(*this);
    if (hwnd_ == nullptr)
        return;
    const Win32World::Quiet quiet(world_);
    DestroyWindow(hwnd_);
}

void Win32TextBox::place() {
    SetWindowPos(hwnd_, nullptr, left_, top_, width_, height_, SWP_NOZORDER | SWP_NOACTIVATE);
}

void Win32TextBox::letLeft(Single left) {
    left_ = roundToLong(left);
    place();
}
void Win32TextBox::letTop(Single top) {
    top_ = roundToLong(top);
    place();
}
void Win32TextBox::letWidth(Single width) {
    width_ = std::max(roundToLong(width), Long{0});
    place();
}
void Win32TextBox::letHeight(Single height) {
    height_ = std::max(roundToLong(height), Long{0});
    place();
}

void Win32TextBox::letVisible(bool visible) {
    const bool wasVisible = std::exchange(visible_, visible);
    HWND window = hwnd_;
    if (window == nullptr)
        return;
    if (!visible)
        Win32Window::passOnFocus(window);
    if (visible != wasVisible)
        ShowWindow(window, visible ? SW_SHOWNA : SW_HIDE);
}

void Win32TextBox::letTabStop(bool tabStop) {
    const bool hadTabStop = std::exchange(tabStop_, tabStop);
    if (hwnd_ == nullptr || tabStop == hadTabStop)
        return;
    const LONG_PTR style = GetWindowLongPtrW(hwnd_, GWL_STYLE);
    SetWindowLongPtrW(hwnd_, GWL_STYLE, tabStop ? style | WS_TABSTOP : style & ~LONG_PTR{WS_TABSTOP});
}

void Win32TextBox::setFont(const FontSpec& font) {
    font_ = font;
    const std::shared_ptr<const GdiFont> old = gdiFont_;
    gdiFont_ = gdiFont(font, screenDensity().y);
    SendMessageW(hwnd_, WM_SETFONT, reinterpret_cast<WPARAM>(gdiFont_->handle()), TRUE);
}

void Win32TextBox::letForeColor(OLE_COLOR color) {
    foreColor_ = color;
    InvalidateRect(hwnd_, nullptr, TRUE);
}

Long Win32TextBox::length() const {
    return hwnd_ != nullptr ? GetWindowTextLengthW(hwnd_) : 0;
}

String Win32TextBox::Text() const {
    String text(static_cast<std::size_t>(length()), u'\0');
    const int copied = GetWindowTextW(hwnd_, wide(text.data()), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(std::max(copied, 0)));
    return text;
}

void Win32TextBox::letText(StringView text) {
    // The system's text ends at its first zero.
    const String copy(text.substr(0, text.find(u'\0')));
    SetWindowTextW(hwnd_, wide(copy));
    letSelStart(0);
}

Long Win32TextBox::SelStart() const {
    DWORD start = 0;
    SendMessageW(hwnd_, EM_GETSEL, reinterpret_cast<WPARAM>(&start), 0);
    return static_cast<Long>(start);
}

Long Win32TextBox::SelLength() const {
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(hwnd_, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return static_cast<Long>(end - start);
}

void Win32TextBox::letSelStart(Long start) {
    const Long at = std::clamp(start, Long{0}, length());
    SendMessageW(hwnd_, EM_SETSEL, static_cast<WPARAM>(at), at);
}

void Win32TextBox::letSelLength(Long length) {
    const Long start = SelStart();
    const Long end = start + std::clamp(length, Long{0}, this->length() - start);
    SendMessageW(hwnd_, EM_SETSEL, static_cast<WPARAM>(start), end);
}

void Win32TextBox::setFocus() {
    if (visible_ && parent_ != nullptr && parent_->takesInput())
        SetFocus(hwnd_);
}

LRESULT CALLBACK Win32TextBox::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    auto* self = reinterpret_cast<Win32TextBox*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self == nullptr)
        return DefWindowProcW(window, message, wParam, lParam);
    const ComRef<IUnknown> alive(self->world_.owner);
    WNDPROC box = self->boxProcedure_;
    try {
        if (const std::optional<LRESULT> answer = self->answer({window, message, wParam, lParam}))
            return *answer;
    } catch (...) {
        // The border of the system: no failure passes, and what can fail has reported it already.
        return 0;
    }
    return CallWindowProcW(box, window, message, wParam, lParam);
}

std::optional<LRESULT> Win32TextBox::answer(const WindowMessage& message) {
    if (world_.onMessage) {
        if (const std::optional<LRESULT> foreign = world_.onMessage(message))
            return foreign;
    }
    switch (message.number) {
    case WM_CHAR:
        return character(message);
    case WM_KILLFOCUS: {
        // The box first, so that its caret is gone when the owner hears of it.
        const LRESULT result =
            CallWindowProcW(boxProcedure_, message.window, message.number, message.wParam, message.lParam);
        if (!world_.isQuiet() && isOfProgram(reinterpret_cast<HWND>(message.wParam)) &&
            !Win32Runtime::isBoxOpen())
            client_.textBoxLostFocus();
        return result;
    }
    case WM_GETDLGCODE:
        // Enter and Escape are the owner's, not those of a dialog.
        return CallWindowProcW(
                   boxProcedure_, message.window, message.number, message.wParam, message.lParam) |
               DLGC_WANTALLKEYS;
    case WM_NCDESTROY: {
        WNDPROC box = boxProcedure_;
        SetWindowLongPtrW(message.window, GWLP_USERDATA, 0);
        hwnd_ = nullptr;
        return CallWindowProcW(box, message.window, message.number, message.wParam, message.lParam);
    }
    default:
        return {};
    }
}

std::optional<LRESULT> Win32TextBox::character(const WindowMessage& message) {
    auto unit = static_cast<Integer>(message.wParam);
    WNDPROC box = boxProcedure_;
    client_.textBoxKeyPress(unit);
    const auto entered = static_cast<char16_t>(unit);
    // A box of one line answers these with a beep.
    constexpr StringView commands = u"\t\n\r\x1B";
    if (entered == u'\0' || commands.find(entered) != StringView::npos || !IsWindow(message.window))
        return 0;
    return CallWindowProcW(box, message.window, message.number, entered, message.lParam);
}

} // namespace lumtex::win32
