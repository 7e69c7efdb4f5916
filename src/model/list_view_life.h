/// \file
/// The part of a list that goes last.
#pragma once

#include "guards/control_life.h"
#include "guards/release_bin.h"

#include <cstddef>
#include <memory>
#include <optional>

namespace lumtex {

/// First base of the list, so that it outlives all else of it. What the list still holds of its host's when
/// its members go is let go behind them, when no half of a list is left for host code to call.
class ListViewLife {
  public:
    ListViewLife(const ListViewLife&) = delete;
    ListViewLife& operator=(const ListViewLife&) = delete;

  protected:
    ListViewLife(void* list, void (*destroy)(void* list)) : life_(list, destroy) {}
    ~ListViewLife() {
        if (releasesBehind_)
            ReleaseBin::ofThread().leave(*releasesBehind_);
    }
    /// To be called once, as the members are about to go.
    void releaseBehindMembers() { releasesBehind_ = ReleaseBin::ofThread().enter(); }

    /// What goes only behind all else of the list: the world in which its last call still runs.
    std::shared_ptr<const void> goesLast_;
    mutable ControlLife life_;

  private:
    std::optional<std::size_t> releasesBehind_;
};

} // namespace lumtex
