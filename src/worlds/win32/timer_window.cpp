#include "worlds/win32/timer_window.h"

#include "values/runtime_error.h"
#include "worlds/win32/win32_timer.h"

#include <algorithm>
#include <vector>

namespace lumtex::win32 {

namespace {

constexpr UINT postedWork = WM_APP;

} // namespace

TimerWindow::TimerWindow(HINSTANCE instance, TickSource& ticks)
    : ticks_(ticks), class_(instance, L"LumtexTimers", procedure, 0) {
    window_ = CreateWindowExW(0, class_.name(), L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, instance, nullptr);
    if (window_ == nullptr)
        throw RuntimeError(ErrorNumber::outOfMemory);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

TimerWindow::~TimerWindow() {
    DestroyWindow(window_);
}

UINT_PTR TimerWindow::start(Win32Timer& timer, Long milliseconds) {
    // Each run has a number of its own, so that a tick of an earlier run that is still on its way is told
    // apart.
    const UINT_PTR run = ++lastRun_;
    if (!ticks_.start(window_, run, milliseconds))
        return 0;
    running_.emplace(run, Run{&timer});
    return run;
}

void TimerWindow::stop(UINT_PTR run) {
    if (running_.erase(run) > 0)
        ticks_.stop(window_, run);
}

void TimerWindow::tick(UINT_PTR run) {
    const auto found = running_.find(run);
    if (found == running_.end())
        return;
    found->second.hasTicked = true;
    found->second.timer->tick();
}

bool TimerWindow::Run::isQuick() const {
    return timer->Interval() <= worlds::EarlyPresses::handsGap;
}

worlds::EarlyPresses::Noticed TimerWindow::noticed() const {
    auto found = worlds::EarlyPresses::Noticed::nothing;
    for (const auto& [number, run] : running_) {
        if (run.isQuick() && !run.hasTicked)
            return worlds::EarlyPresses::Noticed::soon;
        if (run.isQuick())
            found = worlds::EarlyPresses::Noticed::already;
    }
    return found;
}

bool TimerWindow::isLate() const {
    return ticks_.mayBeLate() && noticed() == worlds::EarlyPresses::Noticed::soon;
}

void TimerWindow::tickQuickOnes() {
    std::vector<UINT_PTR> due;
    for (const auto& [number, run] : running_)
        if (run.isQuick() && !run.hasTicked)
            due.push_back(number);
    // In the order in which they were started; a tick may end another timer.
    std::ranges::sort(due);
    for (const UINT_PTR number : due)
        tick(number);
}

bool TimerWindow::post(void (*work)(void*), void* argument) const {
    static_assert(sizeof(work) == sizeof(WPARAM) && sizeof(argument) == sizeof(LPARAM));
    return PostMessageW(
               window_, postedWork, reinterpret_cast<WPARAM>(work), reinterpret_cast<LPARAM>(argument)) !=
           FALSE;
}

LRESULT CALLBACK TimerWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == postedWork) {
        reinterpret_cast<void (*)(void*)>(wParam)(reinterpret_cast<void*>(lParam));
        return 0;
    }
    auto* timers = reinterpret_cast<TimerWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message != WM_TIMER || timers == nullptr)
        return DefWindowProcW(window, message, wParam, lParam);
    try {
        timers->tick(wParam);
    } catch (...) {
        // The border of the system: no failure passes, and there is nobody to tell.
        return 0;
    }
    return 0;
}

} // namespace lumtex::win32
