/// \file
/// A timer of the system.
#pragma once

#include "platform/timer.h"
#include "worlds/win32/timer_window.h"

#include <functional>

namespace lumtex::win32 {

/// As fine as the system's timers, some 10 to 16 milliseconds: a shorter interval ticks as often as they do.
class Win32Timer final : public Timer {
  public:
    Win32Timer(TimerWindow& window, std::function<void()> onTimer);
    ~Win32Timer() override;

    bool Enabled() const override { return enabled_; }
    void letEnabled(bool enabled) override;
    Long Interval() const override { return interval_; }
    /// Starts over, also for the interval that it has; a negative one counts as 0.
    void letInterval(Long milliseconds) override;

    void tick();

  private:
    void restart();

    TimerWindow& window_;
    std::function<void()> onTimer_;
    bool enabled_ = false;
    Long interval_ = 0;
    UINT_PTR run_ = 0; ///< 0 while it does not tick
};

} // namespace lumtex::win32
