/// \file
/// Which objects of the component model and which of ours stand for each other.
#pragma once

#include "worlds/win32/com_ref.h"

#include <map>
#include <memory>
#include <mutex>
#include <utility>

namespace lumtex::win32 {

/// Keeps nothing alive: each side takes itself out when it ends. An object belongs to the thread that it was
/// entered on, and is found there alone.
template <class Ours, class Theirs>
class ObjectPairs {
  public:
    /// Ours for an object of a host, if it is known and still there.
    std::shared_ptr<Ours> oursFor(IUnknown* identity) {
        const std::lock_guard lock(guard_);
        const auto found = ours_.find({GetCurrentThreadId(), identity});
        return found == ours_.end() ? nullptr : found->second.lock();
    }
    /// The object that was made for one of ours, with a reference of the caller's own.
    ComRef<Theirs> theirsFor(const Ours* ours) {
        const std::lock_guard lock(guard_);
        const auto found = theirs_.find({GetCurrentThreadId(), ours});
        return found == theirs_.end() ? ComRef<Theirs>() : ComRef<Theirs>(found->second);
    }

    void enterOurs(IUnknown* identity, const std::shared_ptr<Ours>& ours) {
        const std::lock_guard lock(guard_);
        ours_[{GetCurrentThreadId(), identity}] = ours;
    }
    void enterTheirs(const Ours* ours, Theirs* theirs) {
        const std::lock_guard lock(guard_);
        theirs_[{GetCurrentThreadId(), ours}] = theirs;
    }
    /// Either may be null.
    void forget(IUnknown* identity, const Ours* ours) {
        const std::lock_guard lock(guard_);
        ours_.erase({GetCurrentThreadId(), identity});
        theirs_.erase({GetCurrentThreadId(), ours});
    }

  private:
    std::mutex guard_;
    std::map<std::pair<DWORD, IUnknown*>, std::weak_ptr<Ours>> ours_;
    std::map<std::pair<DWORD, const Ours*>, Theirs*> theirs_;
};

} // namespace lumtex::win32
