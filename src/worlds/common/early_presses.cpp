#include "worlds/common/early_presses.h"

#include "worlds/common/nesting_level.h"

#include <exception>
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

/// Lets what comes behind a failure happen before the failure goes on: what waits would wait for ever.
class FirstFailure {
  public:
    void catchOf(const std::function<void()>& work) {
        try {
            work();
        } catch (...) {
            if (!failure_)
                failure_ = std::current_exception();
        }
    }
    void pass() const {
        if (failure_)
            std::rethrow_exception(failure_);
    }

  private:
    std::exception_ptr failure_;
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
    FirstFailure failure;
    {
        const NestingLevel level(depth_);
        failure.catchOf(tell);
    }
    if (depth_ == 0)
        failure.catchOf([this] { tellHeld(); });
    failure.pass();
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
    FirstFailure failure;
    failure.catchOf(tick_);
    while (!held_.empty()) {
        const std::function<void()> tell = std::move(held_.front());
        held_.pop_front();
        failure.catchOf(tell);
    }
    failure.pass();
}

} // namespace lumtex::worlds
