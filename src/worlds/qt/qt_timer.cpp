#include "worlds/qt/qt_timer.h"

#include <algorithm>
#include <utility>

namespace lumtex::qt {

QtTimer::QtTimer(std::function<void()> onTimer, std::vector<QtTimer*>* among)
    : onTimer_(std::move(onTimer)), among_(among) {
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, [this] { tick(); });
    if (among_ != nullptr)
        among_->push_back(this);
}

QtTimer::~QtTimer() {
    if (among_ != nullptr)
        std::erase(*among_, this);
}

void QtTimer::tick() {
    ticked_ = true;
    // A copy, since the handler may destroy its timer.
    const std::function<void()> handler = onTimer_;
    handler();
}

void QtTimer::restart() {
    timer_.stop();
    ticked_ = false;
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
