#include "worlds/qt/qt_timer.h"

#include <algorithm>
#include <utility>

namespace lumtex::qt {

QtTimer::QtTimer(std::function<void()> onTimer) {
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, [tick = std::move(onTimer)] {
        // A copy, since the handler may destroy its timer, and what is connected with it.
        const std::function<void()> handler = tick;
        handler();
    });
}

void QtTimer::restart() {
    timer_.stop();
    if (enabled_ && interval_ > 0)
        timer_.start(interval_);
}

void QtTimer::letEnabled(bool enabled) {
    if (enabled == enabled_)
        return;
    enabled_ = enabled;
    restart();
}

void QtTimer::letInterval(Long milliseconds) {
    interval_ = std::max(milliseconds, Long{0});
    restart();
}

} // namespace lumtex::qt
