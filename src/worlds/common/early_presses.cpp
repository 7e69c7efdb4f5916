#include "worlds/common/early_presses.h"

#include "worlds/common/nesting_level.h"

#include <utility>

namespace lumtex::worlds {

namespace {

/// Sets a flag for as long as it lives.
class Raised {
  public:
    explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;
    ~Raised() { flag_ = false; }

  private:
    bool& flag_;
};

} // namespace

EarlyPresses::EarlyPresses(std::function<Noticed()> noticed, std::function<void()> tick)
    : noticed_(std::move(noticed)), tick_(std::move(tick)) {}

/// Other windows do not, or a form that opens meanwhile would hear of no mouse.
bool EarlyPresses::mustWait(WindowHandle window) const {
    return window == window_ && (telling_ || !held_.empty());
}

void EarlyPresses::move(WindowHandle window, const std::function<void()>& tell) {
    if (mustWait(window)) {
        held_.push_back(tell);
        return;
    }
    {
        const NestingLevel level(depth_);
        tell();
    }
    if (depth_ == 0)
        tellHeld();
}

void EarlyPresses::press(WindowHandle window, bool isEarly, const std::function<void()>& tell) {
    const bool inMove = depth_ > 0;
    if (mustWait(window)) {
        held_.push_back(tell);
        return;
    }
    const Noticed noticed = noticed_();
    const bool isWaiting = telling_ || !held_.empty();
    if (isWaiting || (!isEarly && (!inMove || noticed == Noticed::already))) {
        tell();
        return;
    }
    window_ = window;
    held_.push_back(tell);
    if (!inMove || noticed != Noticed::nothing)
        tellHeld();
}

void EarlyPresses::other(WindowHandle window, const std::function<void()>& tell) {
    if (mustWait(window))
        held_.push_back(tell);
    else
        tell();
}

void EarlyPresses::tellHeld() {
    if (telling_ || held_.empty())
        return;
    const Raised telling(telling_);
    tick_();
    while (!held_.empty()) {
        const std::function<void()> tell = std::move(held_.front());
        held_.pop_front();
        tell();
    }
}

} // namespace lumtex::worlds
