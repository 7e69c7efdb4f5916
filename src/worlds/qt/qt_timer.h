/// \file
/// A timer of Qt.
#pragma once

#include "platform/timer.h"

#include <QTimer>
#include <functional>

namespace lumtex::qt {

/// Precise to the millisecond where the system is.
class QtTimer final : public Timer {
  public:
    explicit QtTimer(std::function<void()> onTimer);

    bool Enabled() const override { return enabled_; }
    void letEnabled(bool enabled) override;
    Long Interval() const override { return interval_; }
    /// Starts over, also for the interval that it has; a negative one counts as 0.
    void letInterval(Long milliseconds) override;

  private:
    void restart();

    QTimer timer_;
    bool enabled_ = false;
    Long interval_ = 0;
};

} // namespace lumtex::qt
