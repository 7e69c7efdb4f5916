#include "worlds/win32/win32_tips.h"

#include "worlds/win32/ansi_text.h"
#include "worlds/win32/win32_window.h"

#include <algorithm>

#include <commctrl.h>

namespace lumtex {

namespace {

/// The tool record as the class knows it in this program's width; the oldest form, which every version takes.
const UINT recordSize = TTTOOLINFOA_V1_SIZE;
/// What callers put into the size field: the bytes of that form in a program of 32 bits.
constexpr Long promisedSize = 40;

TTTOOLINFOA recordOf(const ToolInfo& tool) {
    TTTOOLINFOA record{};
    record.cbSize = recordSize;
    record.uFlags = static_cast<UINT>(tool.flags);
    record.hwnd = toHWND(tool.owner);
    record.uId = static_cast<UINT_PTR>(static_cast<INT_PTR>(tool.id));
    return record;
}

LRESULT sendTo(HWND window, TipMessage message, Long wParam, LPARAM lParam) {
    return SendMessageA(window, static_cast<UINT>(message), static_cast<WPARAM>(wParam), lParam);
}

} // namespace

Win32Tips::~Win32Tips() {
    for (const WindowHandle tips : windows_)
        DestroyWindow(toHWND(tips));
}

bool Win32Tips::isFormOrSurface(WindowHandle handle) const {
    HWND window = toHWND(handle);
    if (!IsWindow(window))
        return false;
    return Win32Window::of(window) != nullptr || GetAncestor(window, GA_ROOT) == window;
}

void Win32Tips::initCommonControls() {
    InitCommonControls();
}

WindowHandle Win32Tips::createWindow(const TipWindowForm& form) {
    const String className(form.className);
    HWND window = CreateWindowExW(static_cast<DWORD>(form.extendedStyle),
                                  wide(className),
                                  nullptr,
                                  static_cast<DWORD>(form.style),
                                  0,
                                  0,
                                  0,
                                  0,
                                  toHWND(form.owner),
                                  nullptr,
                                  world_.instance(),
                                  nullptr);
    if (window != nullptr)
        windows_.insert(fromHWND(window));
    return fromHWND(window);
}

void Win32Tips::destroyWindow(WindowHandle tips) {
    if (windows_.erase(tips) > 0)
        DestroyWindow(toHWND(tips));
}

HWND Win32Tips::tipWindow(WindowHandle tips) const {
    return windows_.contains(tips) ? toHWND(tips) : nullptr;
}

Long Win32Tips::send(WindowHandle tips, TipMessage message, Long wParam, Long lParam) {
    HWND window = tipWindow(tips);
    if (window == nullptr)
        return 0;
    const LPARAM value = message == ttmSetDelayTime ? MAKELPARAM(lParam, 0) : static_cast<LPARAM>(lParam);
    return static_cast<Long>(sendTo(window, message, wParam, value));
}

Long Win32Tips::send(WindowHandle tips, TipMessage message, Long wParam, ToolInfo& tool) {
    HWND window = tipWindow(tips);
    if (window == nullptr || tool.size != promisedSize)
        return 0;
    TTTOOLINFOA record = recordOf(tool);
    std::string text = tool.text ? ansiFrom(*tool.text) : std::string();
    if (message == ttmEnumTools) {
        // The class has no limit for what it writes, so it writes where there is room for all that it takes
        // in.
        constexpr std::size_t longestTip = 0x10000;
        text.assign(std::max(longestTip, text.size() + 1), '\0');
    }
    record.lpszText = tool.text ? text.data() : nullptr;
    const LRESULT reply = sendTo(window, message, wParam, reinterpret_cast<LPARAM>(&record));
    if (message != ttmEnumTools || reply == 0)
        return static_cast<Long>(reply);
    tool.flags = static_cast<Long>(record.uFlags);
    tool.owner = fromHWND(record.hwnd);
    tool.id = static_cast<WindowHandle>(record.uId);
    if (tool.text) {
        const String whole = textFromAnsi(text.c_str());
        const std::size_t count = std::min(tool.text->size(), whole.size());
        std::copy_n(whole.begin(), count, tool.text->begin());
        if (count < tool.text->size())
            (*tool.text)[count] = u'\0';
    }
    return static_cast<Long>(reply);
}

Long Win32Tips::send(WindowHandle tips, TipMessage message, Long wParam, Rect& margins) {
    HWND window = tipWindow(tips);
    if (window == nullptr)
        return 0;
    RECT record{margins.Left, margins.Top, margins.Right, margins.Bottom};
    const LRESULT reply = sendTo(window, message, wParam, reinterpret_cast<LPARAM>(&record));
    margins = {record.left, record.top, record.right, record.bottom};
    return static_cast<Long>(reply);
}

} // namespace lumtex
