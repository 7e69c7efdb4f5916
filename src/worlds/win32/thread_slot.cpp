#include "worlds/win32/thread_slot.h"

#include "values/thread_state.h"
#include "worlds/win32/windows_api.h"

#include <memory>
#include <new>

namespace lumtex::win32 {

namespace {

/// Given back when the component is unloaded.
class Slot {
  public:
    Slot() = default;
    Slot(const Slot&) = delete;
    Slot& operator=(const Slot&) = delete;
    ~Slot() {
        if (exists())
            TlsFree(number_);
    }

    bool exists() const { return number_ != TLS_OUT_OF_INDEXES; }

    /// Made for a thread that asks for the first time. Never destroyed: the system may let go of a control
    /// after this module has heard of the thread's end.
    ThreadState& state() const {
        void* const kept = TlsGetValue(number_);
        if (kept != nullptr)
            return *static_cast<ThreadState*>(kept);
        auto fresh = std::make_unique<ThreadState>();
        if (TlsSetValue(number_, fresh.get()) == FALSE)
            throw std::bad_alloc();
        return *fresh.release();
    }

  private:
    DWORD number_ = TlsAlloc();
};

const Slot& slot() {
    static const Slot slot;
    return slot;
}

ThreadState& stateOfThread() {
    return slot().state();
}

} // namespace

void useThreadSlot() {
    if (slot().exists())
        ThreadState::letFinder(stateOfThread);
}

} // namespace lumtex::win32
