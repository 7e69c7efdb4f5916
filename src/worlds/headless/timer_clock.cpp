#include "worlds/headless/timer_clock.h"

#include <algorithm>
#include <tuple>

namespace lumtex::headless {

namespace {

/// Some 285000 years: far enough, and no sum with an interval overflows.
constexpr TimerClock::Span endOfTime{std::int64_t{1} << 53U};

} // namespace

void TimerClock::moveTo(Span moment) {
    now_ = std::max(now_, std::min(moment, endOfTime));
}

TimerClock::Span TimerClock::after(Span span) const {
    return now_ + std::clamp(span, Span{0}, endOfTime - now_);
}

void TimerClock::born() {
    if (timers_.capacity() <= alive_)
        timers_.reserve(2 * alive_ + 1);
    ++alive_;
}

HeadlessTimer* TimerClock::first() const {
    HeadlessTimer* first = nullptr;
    for (HeadlessTimer* timer : timers_) {
        if (first == nullptr || timer->isBefore(*first))
            first = timer;
    }
    return first;
}

std::optional<TimerClock::Span> TimerClock::nextDue() const {
    const HeadlessTimer* timer = first();
    return timer != nullptr ? std::optional(timer->due()) : std::nullopt;
}

bool TimerClock::deliverTick() {
    HeadlessTimer* timer = first();
    if (timer == nullptr || timer->due() > now_)
        return false;
    timer->tick();
    return true;
}

HeadlessTimer::HeadlessTimer(TimerClock& clock, std::function<void()> onTimer)
    : clock_(clock), onTimer_(std::move(onTimer)) {
    clock_.born();
}

HeadlessTimer::~HeadlessTimer() {
    clock_.remove(*this);
    clock_.died();
}

void HeadlessTimer::start() {
    due_ = clock_.now() + TimerClock::Span(interval_);
    arrival_ = clock_.nextArrival();
}

/// The clock knows the timers that run, and no others.
void HeadlessTimer::tellTheClock() {
    clock_.remove(*this);
    if (enabled_ && interval_ > 0)
        clock_.add(*this);
}

void HeadlessTimer::letEnabled(bool enabled) {
    if (enabled && !enabled_)
        start();
    enabled_ = enabled;
    tellTheClock();
}

void HeadlessTimer::letInterval(Long milliseconds) {
    interval_ = std::max(milliseconds, Long{0});
    start();
    tellTheClock();
}

bool HeadlessTimer::isBefore(const HeadlessTimer& other) const {
    return std::tuple(due_, arrival_) < std::tuple(other.due_, other.arrival_);
}

void HeadlessTimer::tick() {
    const TimerClock::Span interval(interval_);
    due_ += interval * ((clock_.now() - due_) / interval + 1);
    arrival_ = clock_.nextArrival();
    // A copy, since the handler may destroy its timer.
    const std::function<void()> handler = onTimer_;
    handler();
}

} // namespace lumtex::headless
