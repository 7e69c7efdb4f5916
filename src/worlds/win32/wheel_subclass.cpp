#include "worlds/win32/wheel_subclass.h"

#include "values/runtime_error.h"
#include "worlds/win32/com_ref.h"
#include "worlds/win32/win32_world.h"

#include <utility>

namespace lumtex::win32 {

namespace {

constexpr const wchar_t* oldWheelProc = L"OldWheelProc";
constexpr const wchar_t* wheelPtr = L"WheelPtr";
constexpr const wchar_t* wheelWnd = L"WheelWnd";

} // namespace

WheelSubclass::WheelSubclass(Win32World& world, HWND parent, OnWheel onWheel)
    : world_(world), onWheel_(std::move(onWheel)), class_(world.instance(), L"LumtexWheel", ownProcedure, 0) {
    hwnd_ = CreateWindowExW(
        0, class_.name(), L"", WS_CHILD, 0, 0, 0, 0, parent, nullptr, world.instance(), nullptr);
    if (hwnd_ == nullptr)
        throw RuntimeError(ErrorNumber::outOfMemory);
    SetWindowLongPtrW(hwnd_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

WheelSubclass::~WheelSubclass() {
    if (hwnd_ == nullptr)
        return;
    const Win32World::Quiet quiet(world_);
    DestroyWindow(hwnd_);
}

void WheelSubclass::Subclass(WindowHandle hWnd) {
    // A second replacement would lose the chain.
    if (GetPropW(hwnd_, oldWheelProc) != nullptr)
        return;
    HWND window = toHWND(hWnd);
    // The properties come first, so that the first message finds them.
    SetPropW(hwnd_, oldWheelProc, reinterpret_cast<HANDLE>(GetWindowLongPtrW(window, GWLP_WNDPROC)));
    SetPropW(hwnd_, wheelPtr, this);
    SetPropW(window, wheelWnd, hwnd_);
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(WheelProc));
    captured_ = window;
}

void WheelSubclass::UnSubclass(WindowHandle hWnd) {
    HANDLE old = GetPropW(hwnd_, oldWheelProc);
    if (old == nullptr)
        return;
    HWND window = toHWND(hWnd);
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(old));
    RemovePropW(window, wheelWnd);
    RemovePropW(hwnd_, wheelPtr);
    RemovePropW(hwnd_, oldWheelProc);
    captured_ = nullptr;
}

void WheelSubclass::WndProc(HWND hWnd, WPARAM wParam, LPARAM lParam) {
    // The receiver may destroy the list, and with it this object.
    const OnWheel receiver = onWheel_;
    const auto Keys = static_cast<Integer>(LOWORD(wParam));
    const auto delta = static_cast<Integer>(HIWORD(wParam));
    const auto X = static_cast<Integer>(LOWORD(lParam));
    const auto Y = static_cast<Integer>(HIWORD(lParam));
    receiver(fromHWND(hWnd), delta, Keys, X, Y);
}

LRESULT CALLBACK WheelSubclass::WheelProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) noexcept {
    auto* const own = static_cast<HWND>(GetPropW(hWnd, wheelWnd));
    if (uMsg != WM_MOUSEWHEEL) {
        auto* const old = reinterpret_cast<WNDPROC>(GetPropW(own, oldWheelProc));
        return CallWindowProcW(old, hWnd, uMsg, wParam, lParam);
    }
    auto* const wheel = static_cast<WheelSubclass*>(GetPropW(own, wheelPtr));
    try {
        if (wheel != nullptr) {
            const ComRef<IUnknown> alive(wheel->world_.owner);
            wheel->WndProc(hWnd, wParam, lParam);
        }
    } catch (...) {
        // The border of the system: what can fail has reported it already.
        return 0;
    }
    return 0;
}

LRESULT CALLBACK WheelSubclass::ownProcedure(HWND window,
                                             UINT message,
                                             WPARAM wParam,
                                             LPARAM lParam) noexcept {
    auto* wheel = reinterpret_cast<WheelSubclass*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (wheel != nullptr && message == WM_DESTROY) {
        // A container that destroys everything at once must not leave a captured window without its
        // procedure: the properties vanish before it does.
        wheel->UnSubclass(fromHWND(wheel->captured_));
        wheel->hwnd_ = nullptr;
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

} // namespace lumtex::win32
