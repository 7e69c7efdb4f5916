/// The queue and the clock of the simulated desktop.
#include "platform/headless/desktop.h"
#include "platform/headless/headless_widgets.h"

#include <algorithm>
#include <tuple>

namespace lumtex {

void Desktop::post(std::function<void()> deliver) {
    queue_.push_back(std::move(deliver));
}

/// The timer whose tick is due first, or none.
HeadlessTimer* Desktop::dueTimer() {
    HeadlessTimer* next = nullptr;
    const auto order = [](const HeadlessTimer& timer) { return std::tuple(timer.due(), timer.arrival()); };
    for (HeadlessTimer* timer : timers_) {
        if (timer->ticking() && timer->due() <= time_ && (next == nullptr || order(*timer) < order(*next)))
            next = timer;
    }
    return next;
}

bool Desktop::deliverOne() {
    if (!queue_.empty()) {
        const std::function<void()> deliver = std::move(queue_.front());
        queue_.pop_front();
        deliver();
        return true;
    }
    if (HeadlessTimer* timer = dueTimer()) {
        timer->tick(time_);
        return true;
    }
    return false;
}

void Desktop::run() {
    for (int count = 0; count < longestRun && deliverOne(); ++count) {
    }
}

void Desktop::doEvents() {
    ++yieldDepth_;
    if (!yieldHooks_.empty()) {
        const std::function<void()> hook = std::move(yieldHooks_.front());
        yieldHooks_.pop_front();
        hook();
    }
    run();
    --yieldDepth_;
}

void Desktop::advance(std::chrono::milliseconds span) {
    const std::chrono::milliseconds end = time_ + span;
    run();
    for (int count = 0; count < longestRun; ++count) {
        std::chrono::milliseconds next = end;
        bool due = false;
        for (const HeadlessTimer* timer : timers_) {
            if (timer->ticking() && timer->due() <= next) {
                next = timer->due();
                due = true;
            }
        }
        if (!due)
            break;
        time_ = std::max(time_, next);
        run();
    }
    time_ = std::max(time_, end);
}

} // namespace lumtex
