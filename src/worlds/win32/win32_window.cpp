#include "worlds/win32/win32_window.h"

#include "values/rounding.h"
#include "values/runtime_error.h"
#include "worlds/win32/win32_guide_line.h"
#include "worlds/win32/win32_text_box.h"

#include <algorithm>
#include <utility>

namespace lumtex::win32 {

namespace {

/// The system's windows know no greater size, and places from the negative of it on.
constexpr Long farthest = 32767;

int withinReach(Long coordinate) {
    return std::clamp(coordinate, -farthest, farthest);
}

DWORD styleOf(Win32Window::Kind kind) {
    constexpr DWORD always = WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
    switch (kind) {
    case Win32Window::Kind::child:
        return always | WS_CHILD;
    case Win32Window::Kind::shownChild:
        return always | WS_CHILD | WS_VISIBLE;
    case Win32Window::Kind::form:
        break;
    }
    return always | WS_POPUP;
}

/// Windows that others put into ours are not ours to destroy.
void setFreeChildren(HWND window) {
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(window, GW_CHILD)) {
        ShowWindow(child, SW_HIDE);
        if (SetParent(child, HWND_MESSAGE) == nullptr)
            return;
    }
}

} // namespace

Win32Window::Win32Window(Win32World& world, HWND parent, Kind kind, UserControl& client)
    : world_(world), client_(client), surface_(makeGdiSurface(0, 0)), visible_(kind == Kind::shownChild) {
    const Win32World::Quiet quiet(world);
    hwnd_ = CreateWindowExW(0,
                            world.surfaceClass().name(),
                            L"",
                            styleOf(kind),
                            0,
                            0,
                            0,
                            0,
                            parent,
                            nullptr,
                            world.instance(),
                            nullptr);
    if (hwnd_ == nullptr)
        throw RuntimeError(ErrorNumber::outOfMemory);
    SetWindowLongPtrW(hwnd_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    if (kind == Kind::child)
        raise(hwnd_);
}

Win32Window::~Win32Window() {
    for (Win32GuideLine* guide : guides_)
        guide->loseParent();
    for (Win32TextBox* box : boxes_)
        box->loseParent();
    if (hwnd_ == nullptr)
        return;
    const Win32World::Quiet quiet(world_);
    HWND window = hwnd_;
    if (GetCapture() == window)
        Win32World::giveUpCapture();
    dropPlace_.reset();
    detach();
    setFreeChildren(window);
    DestroyWindow(window);
}

/// Handle and object know each other no more.
void Win32Window::detach() {
    if (world_.press.window() == hWnd())
        world_.press.forget();
    SetWindowLongPtrW(hwnd_, GWLP_USERDATA, 0);
    hwnd_ = nullptr;
}

void Win32Window::raise(HWND child) {
    SetWindowPos(child, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

Win32Window* Win32Window::of(HWND window) {
    // A subclass changes the window's procedure, never that of its class.
    if (window == nullptr ||
        GetClassLongPtrW(window, GCLP_WNDPROC) != reinterpret_cast<ULONG_PTR>(&Win32Window::procedure))
        return nullptr;
    return reinterpret_cast<Win32Window*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

void Win32Window::place(Single left, Single top, Single width, Single height) {
    const Point corner{roundToLong(left), roundToLong(top)};
    const Long newWidth = std::max<Long>(roundToLong(width), 0);
    const Long newHeight = std::max<Long>(roundToLong(height), 0);
    const bool resized = newWidth != surface_->scaleWidth() || newHeight != surface_->scaleHeight();
    if (resized)
        resizeSurface(newWidth, newHeight);
    const Point oldCorner = std::exchange(corner_, corner);
    const bool moved = corner.x != oldCorner.x || corner.y != oldCorner.y;
    HWND window = hwnd_;
    if (window != nullptr && (moved || resized)) {
        placing_ = true;
        SetWindowPos(window,
                     nullptr,
                     withinReach(corner.x),
                     withinReach(corner.y),
                     std::min(newWidth, farthest),
                     std::min(newHeight, farthest),
                     SWP_NOZORDER | SWP_NOACTIVATE);
        placing_ = false;
        if (resized)
            invalidate();
    }
    if (resized)
        client_.UserControl_Resize();
}

void Win32Window::resizeSurface(Long width, Long height) {
    Win32World::refuseHugeSize(width, height);
    surface_->resize(width, height);
}

void Win32Window::letVisible(bool visible) {
    const bool wasVisible = std::exchange(visible_, visible);
    HWND window = hwnd_;
    if (!visible && wasVisible)
        loseInput();
    if (visible != wasVisible)
        ShowWindow(window, visible ? SW_SHOWNA : SW_HIDE);
    if (visible && !wasVisible)
        client_.UserControl_Show();
}

void Win32Window::letEnabled(bool enabled) {
    const bool wasEnabled = std::exchange(enabled_, enabled);
    HWND window = hwnd_;
    if (!enabled && wasEnabled)
        loseInput();
    EnableWindow(window, enabled ? TRUE : FALSE);
}

void Win32Window::loseInput() {
    HWND window = hwnd_;
    if (window == nullptr)
        return;
    HWND pressedOn = toHWND(world_.press.window());
    if (pressedOn == window || IsChild(window, pressedOn))
        world_.press.forget();
    HWND captured = GetCapture();
    if (captured != nullptr && (captured == window || IsChild(window, captured)))
        Win32World::giveUpCapture();
    passOnFocus(window);
}

void Win32Window::passOnFocus(HWND window) {
    HWND focus = GetFocus();
    if (focus == nullptr || (focus != window && !IsChild(window, focus)))
        return;
    HWND outer = GetAncestor(window, GA_PARENT);
    for (const Win32Window* known = of(outer); known != nullptr && !known->takesInput(); known = of(outer))
        outer = GetAncestor(outer, GA_PARENT);
    SetFocus(outer != GetDesktopWindow() ? outer : nullptr);
}

bool Win32Window::takesInput() const {
    if (!visible_ || !enabled_ || hwnd_ == nullptr)
        return false;
    const Win32Window* outer = of(GetAncestor(hwnd_, GA_PARENT));
    return outer == nullptr || outer->takesInput();
}

Win32Window& Win32Window::keyWindow() {
    Win32Window* outer = !takesKeys_ && hwnd_ != nullptr ? of(GetAncestor(hwnd_, GA_PARENT)) : nullptr;
    return outer != nullptr ? outer->keyWindow() : *this;
}

bool Win32Window::hasBox(HWND window) const {
    return window != nullptr && std::ranges::any_of(boxes_, [&](const Win32TextBox* box) {
               return toHWND(box->hWnd()) == window;
           });
}

void Win32Window::letOLEDropMode(Long mode) {
    constexpr Integer manual = 1;
    if (mode != manual || hwnd_ == nullptr)
        dropPlace_.reset();
    else if (!dropPlace_)
        dropPlace_ = std::make_unique<DropPlace>(hwnd_, client_);
}

void Win32Window::letMousePointer(CursorShape shape) {
    if (shape == pointerShape_.shape())
        return;
    pointerShape_.letShape(shape);
    showPointer();
}

void Win32Window::setMouseIcon(PictureRef icon) {
    if (icon == pointerShape_.icon())
        return;
    pointerShape_.setIcon(std::move(icon));
    showPointer();
}

void Win32Window::showPointer() const {
    if (hwnd_ != nullptr && (GetCapture() == hwnd_ || underPointer()))
        SetCursor(pointerShape_.cursor());
}

void Win32Window::setFocus() {
    if (takesInput())
        SetFocus(hwnd_);
}

void Win32Window::setCapture() {
    if (takesInput())
        SetCapture(hwnd_);
}

void Win32Window::releaseCapture() {
    if (hwnd_ != nullptr && GetCapture() == hwnd_)
        Win32World::giveUpCapture();
}

bool Win32Window::underPointer() const {
    POINT at{};
    return hwnd_ != nullptr && GetCursorPos(&at) && WindowFromPoint(at) == hwnd_;
}

bool Win32Window::pointerStrictlyInside() const {
    RECT bounds{};
    POINT at{};
    if (hwnd_ == nullptr || !GetWindowRect(hwnd_, &bounds) || !GetCursorPos(&at))
        return false;
    return WindowFromPoint(at) == hwnd_ && bounds.left < at.x && bounds.top < at.y && bounds.right > at.x &&
           bounds.bottom > at.y;
}

Point Win32Window::pointer() const {
    POINT at{};
    if (hwnd_ == nullptr || !GetCursorPos(&at) || !ScreenToClient(hwnd_, &at))
        return {};
    return {at.x, at.y};
}

bool Win32Window::adopt(WindowHandle child) {
    HWND window = toHWND(child);
    if (hwnd_ == nullptr || window == nullptr || !IsWindow(window) || window == hwnd_ ||
        IsChild(window, hwnd_))
        return false;
    return SetParent(window, hwnd_) != nullptr;
}

void Win32Window::invalidate() {
    // The system asks for all of a window when it is shown.
    if (hwnd_ != nullptr && isShown())
        InvalidateRect(hwnd_, nullptr, FALSE);
}

void Win32Window::present() {
    invalidate();
    if (world_.onPresent)
        world_.onPresent();
}

bool Win32Window::isShown() const {
    if (!visible_)
        return false;
    const Win32Window* outer = of(GetAncestor(hwnd_, GA_PARENT));
    return outer == nullptr || outer->isShown();
}

void Win32Window::remove(Win32GuideLine& guide) {
    std::erase(guides_, &guide);
    present();
}

bool Win32Window::covers(POINT at) const {
    RECT area{};
    if (hwnd_ == nullptr || !GetClientRect(hwnd_, &area) || !PtInRect(&area, at))
        return false;
    HWND parent = GetAncestor(hwnd_, GA_PARENT);
    const Win32Window* outer = of(parent);
    if (outer == nullptr)
        return true;
    MapWindowPoints(hwnd_, parent, &at, 1);
    return outer->covers(at);
}

} // namespace lumtex::win32
