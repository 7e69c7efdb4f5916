/// \file
/// Where references to objects of the host wait until they may go.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace lumtex {

/// Letting go of the last reference to an object of the host runs host code: a destructor, a finaliser, a
/// `Class_Terminate`, and each of these may call the list. So what a procedure takes out of the list waits
/// here, and goes when that procedure has ended and the list is whole again.
///
/// One per thread. Procedures run within one another, and each lets go of what has come since it began.
class ReleaseBin {
  public:
    using Reference = std::shared_ptr<const void>;

    static ReleaseBin& ofThread();

    ReleaseBin() = default;
    ReleaseBin(const ReleaseBin&) = delete;
    ReleaseBin& operator=(const ReleaseBin&) = delete;

    /// Makes room for one more reference, so that `take` never needs memory. Throws std::bad_alloc.
    void reserve();
    /// Keeps `reference` until the innermost procedure ends; without one it goes at once. Uses up one
    /// reserved place.
    void take(Reference reference) noexcept;

    /// How many references wait.
    std::size_t waiting() const noexcept { return waiting_.size(); }

    /// What a procedure does at its begin, and at its end with the number that it got.
    std::size_t enter() noexcept {
        ++procedures_;
        return waiting_.size();
    }
    void leave(std::size_t mark) noexcept {
        if (waiting_.size() > mark)
            empty(mark);
        --procedures_;
    }

  private:
    void empty(std::size_t mark) noexcept;

    std::vector<Reference> waiting_;
    std::ptrdiff_t reserved_ = 0; ///< references that the lists of this thread hold
    std::size_t procedures_ = 0;
};

} // namespace lumtex
