/// \file
/// A timer that ticks while it is enabled.
#pragma once

#include "values/types.h"

namespace lumtex {

/// Created off. Ticks arrive between other events on the interface thread, never inside a call.
class Timer {
  public:
    Timer() = default;
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;
    virtual ~Timer() = default;

    virtual bool Enabled() const = 0;
    /// Turning it on starts a whole interval; on again while on changes nothing.
    virtual void letEnabled(bool enabled) = 0;
    /// Milliseconds; 0 never ticks. A new interval starts over.
    virtual Long Interval() const = 0;
    virtual void letInterval(Long milliseconds) = 0;

    /// A note that the owner keeps with the timer.
    String Tag;
};

} // namespace lumtex
