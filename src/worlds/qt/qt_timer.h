/// \file
/// A timer of Qt.
#pragma once

#include "platform/timer.h"

#include <QTimer>
#include <functional>
#include <vector>

namespace lumtex::qt {

/// Precise to the millisecond where the system is.
class QtTimer final : public Timer {
  public:
    /// `among` lists it as long as it lives, and must outlive it; null for none.
    explicit QtTimer(std::function<void()> onTimer, std::vector<QtTimer*>* among = nullptr);
    ~QtTimer() override;

    bool Enabled() const override { return enabled_; }
    void letEnabled(bool enabled) override;
    Long Interval() const override { return interval_; }
    /// Starts over, also for the interval that it has; a negative one counts as 0.
    void letInterval(Long milliseconds) override;

    bool runs() const { return timer_.isActive(); }
    /// Whether it ticked since it was started.
    bool hasTicked() const { return ticked_; }
    void tick();

  private:
    void restart();

    QTimer timer_;
    std::function<void()> onTimer_;
    std::vector<QtTimer*>* among_;
    bool ticked_ = false;
    bool enabled_ = false;
    Long interval_ = 0;
};

} // namespace lumtex::qt
