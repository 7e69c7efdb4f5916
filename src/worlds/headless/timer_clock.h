/// \file
/// Virtual time and the timers that live by it.
#pragma once

#include "platform/timer.h"

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

namespace lumtex::headless {

class HeadlessTimer;

/// Stands still until it is moved, and then never goes back.
class TimerClock {
  public:
    using Span = std::chrono::milliseconds;

    TimerClock() = default;
    TimerClock(const TimerClock&) = delete;
    TimerClock& operator=(const TimerClock&) = delete;

    Span now() const { return now_; }
    /// No effect for a moment that is past.
    void moveTo(Span moment);
    /// The moment `span` from now; a negative span counts as none.
    Span after(Span span) const;

    /// The moment of the next tick, which may be past; empty if no timer runs.
    std::optional<Span> nextDue() const;
    /// Asked at each yield, mostly while no timer runs.
    bool isDue() const { return !timers_.empty() && nextDue() <= now_; }
    /// Delivers the tick that is due first, if any is.
    bool deliverTick();

    /// Makes room for one timer more, so that starting one never needs memory.
    void born();
    void died() { --alive_; }
    void add(HeadlessTimer& timer) { timers_.push_back(&timer); }
    void remove(HeadlessTimer& timer) { std::erase(timers_, &timer); }
    /// Orders timers that are due at the same moment.
    std::uint64_t nextArrival() { return ++arrivals_; }

  private:
    HeadlessTimer* first() const;

    Span now_{0};
    std::uint64_t arrivals_ = 0;
    std::size_t alive_ = 0;
    std::vector<HeadlessTimer*> timers_; ///< those that run
};

/// Keeps its rhythm from the moment it was started: a tick that is delivered late does not put off the next
/// one, and ticks that came due meanwhile are not made up for.
class HeadlessTimer final : public Timer {
  public:
    HeadlessTimer(TimerClock& clock, std::function<void()> onTimer);
    ~HeadlessTimer() override;

    bool Enabled() const override { return enabled_; }
    void letEnabled(bool enabled) override;
    Long Interval() const override { return interval_; }
    /// Starts over, also for the interval that it has; a negative one counts as 0.
    void letInterval(Long milliseconds) override;

    TimerClock::Span due() const { return due_; }
    bool isBefore(const HeadlessTimer& other) const;
    void tick();

  private:
    void start();
    void tellTheClock();

    TimerClock& clock_;
    std::function<void()> onTimer_;
    bool enabled_ = false;
    Long interval_ = 0;
    TimerClock::Span due_{0};
    std::uint64_t arrival_ = 0;
};

} // namespace lumtex::headless
