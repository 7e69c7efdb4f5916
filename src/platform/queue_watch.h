/// \file
/// When a long walk has to give the host its turn.
#pragma once

#include "platform/event_queue.h"

#include <chrono>

namespace lumtex {

/// Asks whether events wait, for a walk that yields at each step and runs no code of the host between two of
/// its yields. A look into the queue can cost a thousand times what a step does. Between two steps only
/// events from outside can arrive, and nobody can tell one that arrives now from one that arrives a moment
/// later; so after a look that found nothing the next one waits for that moment.
class QueueWatch {
  public:
    explicit QueueWatch(const EventQueue& queue) : queue_(queue) {}

    /// Looks at its first call, and at each one after a look that found something.
    bool eventWaits() {
        if (stepsLeft_ > 0) {
            --stepsLeft_;
            return false;
        }
        if (Clock::now() >= nextLook_) {
            if (queue_.hasPendingEvents())
                return true;
            nextLook_ = Clock::now() + pause;
        }
        stepsLeft_ = stepsBetweenClocks;
        return false;
    }

    /// Host code ran besides, in a report for one, and may have posted something: the next call looks.
    void hostRan() {
        stepsLeft_ = 0;
        nextLook_ = {};
    }

  private:
    using Clock = std::chrono::steady_clock;

    /// Far less than a person or a timer notices.
    static constexpr std::chrono::milliseconds pause{1};
    /// The clock, too, costs more than a step.
    static constexpr int stepsBetweenClocks = 63;

    const EventQueue& queue_;
    Clock::time_point nextLook_;
    int stepsLeft_ = 0;
};

} // namespace lumtex
