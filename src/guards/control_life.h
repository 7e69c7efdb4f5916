/// \file
/// How long a control stays.
#pragma once

namespace lumtex {

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
        if (--calls_ == 0 && letGo_)
            destroy_(control_);
    }
    /// Whether a call of the control runs.
    bool isBusy() const { return calls_ != 0; }

    /// From now on nothing more reaches the host.
    void end() { ended_ = true; }
    bool hasEnded() const { return ended_; }
    /// The owner is done with the control, which a call keeps until it returns.
    void letGo() { letGo_ = true; }

  private:
    void* control_;
    void (*destroy_)(void* control);
    int calls_ = 0;
    bool ended_ = false;
    bool letGo_ = false;
};

} // namespace lumtex
