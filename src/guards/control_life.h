/// \file
/// How long a control stays.
#pragma once

namespace lumtex {

/// Whoever looks at a control from outside: told where host code may run, so that it may call the control,
/// and let it go.
class ControlWatcher {
  public:
    virtual ~ControlWatcher() = default;
    /// Host code is about to run within a call of the control, or its last call has returned.
    virtual void controlRests() noexcept = 0;
    /// The control ends, and never calls its watcher again. Must call nothing.
    virtual void controlEnds() noexcept = 0;
};

/// Host code may let a control go while calls of that very control run: in an event, in a yield, at a report,
/// as one of its objects is released. The control then ends at once, as far as the host can tell, and its
/// memory goes when the last of these calls has returned. The control's parts share the life of the whole.
class ControlLife {
  public:
    /// `destroy` frees `control`; called at most once, by the last `leave` after `letGo`.
    ControlLife(void* control, void (*destroy)(void* control)) : control_(control), destroy_(destroy) {}
    ControlLife(const ControlLife&) = delete;
    ControlLife& operator=(const ControlLife&) = delete;

    void enter() { ++calls_; }
    /// May free the control, and with it this object.
    void leave() {
        if (calls_ == 1 && watcher_ != nullptr && !letGo_)
            watcher_->controlRests();
        if (--calls_ == 0 && letGo_)
            destroy_(control_);
    }
    /// Host code is about to run.
    void hostComes() {
        if (watcher_ != nullptr)
            watcher_->controlRests();
    }
    /// There is one watcher at most: for the one before, the control ends. Null for none.
    void watch(ControlWatcher* watcher) {
        if (watcher_ != nullptr && watcher_ != watcher)
            watcher_->controlEnds();
        watcher_ = ended_ ? nullptr : watcher;
    }
    bool isWatchedBy(const ControlWatcher& watcher) const { return watcher_ == &watcher; }
    /// Whether a call of the control runs.
    bool isBusy() const { return calls_ != 0; }

    /// From now on nothing more reaches the host.
    void end() {
        ended_ = true;
        watch(nullptr);
    }
    bool hasEnded() const { return ended_; }
    /// The owner is done with the control, which a call keeps until it returns.
    void letGo() { letGo_ = true; }

  private:
    void* control_;
    void (*destroy_)(void* control);
    ControlWatcher* watcher_ = nullptr;
    int calls_ = 0;
    bool ended_ = false;
    bool letGo_ = false;
};

} // namespace lumtex
