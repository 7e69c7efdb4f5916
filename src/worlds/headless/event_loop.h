/// \file
/// The message loop of the simulated desktop: what waits, and who may run while others wait.
#pragma once

#include "worlds/headless/timer_clock.h"

#include <deque>
#include <functional>

namespace lumtex::headless {

/// Events come in the order in which they were posted, then paints, then timer ticks, as a window system
/// ranks them.
class EventLoop {
  public:
    /// Events that one outermost run delivers at most, those of runs inside it included. What a storm leaves
    /// over waits for the next run.
    static constexpr int longestRun = 100000;
    /// Runs and yields that may be inside one another; a deeper one returns at once.
    static constexpr int deepest = 64;

    explicit EventLoop(TimerClock& clock) : clock_(clock) {}
    EventLoop(const EventLoop&) = delete;
    EventLoop& operator=(const EventLoop&) = delete;

    void post(std::function<void()> event) { events_.push_back(std::move(event)); }
    void postPaint(std::function<void()> paint) { paints_.push_back(std::move(paint)); }
    /// Nothing waits: no event, no paint, no tick that is due.
    bool idle() const { return events_.empty() && paints_.empty() && !clock_.isDue(); }

    /// Delivers until nothing waits any more.
    void run();
    /// A run in the middle of someone's work; `before` comes first and is part of the yield.
    void yield(const std::function<void()>& before);
    /// How many yields are under way.
    int yieldDepth() const { return yieldDepth_; }

    /// Lets time pass, running the loop now and at each moment at which a tick is due.
    void advance(TimerClock::Span span);

  private:
    bool deliverOne();

    TimerClock& clock_;
    std::deque<std::function<void()>> events_;
    std::deque<std::function<void()>> paints_;
    int budget_ = 0;
    int runDepth_ = 0;
    int yieldDepth_ = 0;
};

} // namespace lumtex::headless
