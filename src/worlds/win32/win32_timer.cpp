#include "worlds/win32/win32_timer.h"

#include <algorithm>
#include <utility>

namespace lumtex::win32 {

Win32Timer::Win32Timer(TimerWindow& window, std::function<void()> onTimer)
    : window_(window), onTimer_(std::move(onTimer)) {}

Win32Timer::~Win32Timer() {
    window_.stop(run_);
}

void Win32Timer::restart() {
    window_.stop(std::exchange(run_, 0));
    if (enabled_ && interval_ > 0)
        run_ = window_.start(*this, interval_);
}

void Win32Timer::letEnabled(bool enabled) {
    if (enabled == enabled_)
        return;
    enabled_ = enabled;
    restart();
}

void Win32Timer::letInterval(Long milliseconds) {
    interval_ = std::max(milliseconds, Long{0});
    restart();
}

void Win32Timer::tick() {
    // A copy, since the handler may destroy its timer.
    const std::function<void()> handler = onTimer_;
    handler();
}

} // namespace lumtex::win32
