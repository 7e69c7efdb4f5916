#include "worlds/headless/event_loop.h"

#include "worlds/common/nesting_level.h"

namespace lumtex::headless {

namespace {

bool deliverFirst(std::deque<std::function<void()>>& queue) {
    if (queue.empty())
        return false;
    const std::function<void()> event = std::move(queue.front());
    queue.pop_front();
    event();
    return true;
}

} // namespace

bool EventLoop::deliverOne() {
    return deliverFirst(events_) || deliverFirst(paints_) || clock_.deliverTick();
}

void EventLoop::run() {
    if (runDepth_ == deepest)
        return;
    if (runDepth_ == 0)
        budget_ = longestRun;
    const worlds::NestingLevel level(runDepth_);
    while (budget_ > 0) {
        --budget_;
        if (!deliverOne()) {
            ++budget_;
            return;
        }
    }
}

void EventLoop::yield(const std::function<void()>& before) {
    if (yieldDepth_ == deepest)
        return;
    const worlds::NestingLevel level(yieldDepth_);
    before();
    run();
}

void EventLoop::advance(TimerClock::Span span) {
    const TimerClock::Span end = clock_.after(span);
    run();
    // A tick that is still due after a run was kept back by a storm, and would be for ever.
    for (auto due = clock_.nextDue(); due && *due <= end && *due > clock_.now(); due = clock_.nextDue()) {
        clock_.moveTo(*due);
        run();
    }
    clock_.moveTo(end);
}

} // namespace lumtex::headless
