#include "worlds/win32/window_class.h"

#include "values/runtime_error.h"

#include <map>
#include <mutex>

namespace lumtex::win32 {

namespace {

/// How many shares each class has. Worlds of several threads share classes.
struct Shares {
    std::mutex lock;
    std::map<const wchar_t*, int> counts;
};

Shares& shares() {
    static Shares shares;
    return shares;
}

} // namespace

WindowClass::WindowClass(HINSTANCE instance, const wchar_t* name, WNDPROC procedure, UINT style)
    : instance_(instance), name_(name) {
    const std::lock_guard guard(shares().lock);
    int& count = shares().counts[name];
    if (count == 0) {
        WNDCLASSEXW form{};
        form.cbSize = sizeof(form);
        form.style = style;
        form.lpfnWndProc = procedure;
        form.hInstance = instance;
        form.lpszClassName = name;
        if (RegisterClassExW(&form) == 0)
            throw RuntimeError(ErrorNumber::outOfMemory);
    }
    ++count;
}

WindowClass::~WindowClass() {
    const std::lock_guard guard(shares().lock);
    if (--shares().counts[name_] == 0)
        UnregisterClassW(name_, instance_);
}

} // namespace lumtex::win32
