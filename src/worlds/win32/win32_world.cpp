#include "worlds/win32/win32_world.h"

#include "values/runtime_error.h"
#include "worlds/win32/com_ref.h"
#include "worlds/win32/wheel_subclass.h"
#include "worlds/win32/win32_guide_line.h"
#include "worlds/win32/win32_text_box.h"
#include "worlds/win32/win32_timer.h"
#include "worlds/win32/win32_window.h"

#include <utility>

namespace lumtex::win32 {

namespace {

/// Throws RuntimeError 5 for a window of another world.
Win32Window& windowOfOurs(Window& window) {
    auto* own = dynamic_cast<Win32Window*>(&window);
    if (own == nullptr)
        throw RuntimeError(ErrorNumber::invalidProcedureCall);
    return *own;
}

} // namespace

Win32World::Win32World(HINSTANCE instance, HWND container, Runtime* runtime, TickSource& ticks)
    : instance_(instance), container_(container != nullptr ? container : HWND_MESSAGE), runtime_(runtime),
      surfaceClass_(instance, L"LumtexSurface", Win32Window::procedure, CS_DBLCLKS), timers_(instance, ticks),
      ownRuntime_(instance), tips_(*this) {}

Win32World::~Win32World() = default;

std::unique_ptr<Window> Win32World::createWindow(Window* parent, UserControl& client) {
    const auto kind = parent != nullptr ? Win32Window::Kind::child : Win32Window::Kind::shownChild;
    HWND outer = parent != nullptr ? toHWND(windowOfOurs(*parent).hWnd()) : container_;
    return std::make_unique<Win32Window>(*this, outer, kind, client);
}

std::unique_ptr<Window> Win32World::createForm(UserControl& client) {
    return std::make_unique<Win32Window>(*this, nullptr, Win32Window::Kind::form, client);
}

Point Win32World::screenSize() const {
    return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

std::unique_ptr<TextBox> Win32World::createTextBox(Window& parent, TextBoxClient& client) {
    return std::make_unique<Win32TextBox>(*this, windowOfOurs(parent), client);
}

std::unique_ptr<GuideLine> Win32World::createGuideLine(Window& parent) {
    return std::make_unique<Win32GuideLine>(windowOfOurs(parent));
}

std::unique_ptr<Timer> Win32World::createTimer(std::function<void()> onTimer) {
    return std::make_unique<Win32Timer>(timers_, [this, tick = std::move(onTimer)] {
        const ComRef<IUnknown> alive(owner);
        tick();
    });
}

void Win32World::refuseHugeSize(Long width, Long height) {
    if (width > 0 && height > 0 && std::int64_t{width} * height > mostPixels)
        throw RuntimeError(ErrorNumber::outOfMemory);
}

std::unique_ptr<Surface> Win32World::createSurface(Long width, Long height) {
    refuseHugeSize(width, height);
    return makeGdiSurface(width, height);
}

Win32World* Win32World::of(HWND window) {
    for (HWND outer = window; outer != nullptr; outer = GetAncestor(outer, GA_PARENT))
        if (Win32Window* const known = Win32Window::of(outer))
            return &known->world();
    return nullptr;
}

void Win32World::giveUpCapture() {
    if (GetCapture() != nullptr)
        ReleaseCapture();
}

std::unique_ptr<WheelHook> Win32World::createWheelHook(Window& parent, const WheelHook::OnWheel& onWheel) {
    return std::make_unique<WheelSubclass>(*this, toHWND(windowOfOurs(parent).hWnd()), onWheel);
}

} // namespace lumtex::win32
