#include "guards/release_bin.h"

#include "values/thread_state.h"

#include <algorithm>
#include <utility>

namespace lumtex {

ReleaseBin& ReleaseBin::ofThread() {
    ReleaseBin*& bin = ThreadState::ofThread().releaseBin;
    if (bin == nullptr)
        bin = new ReleaseBin;
    return *bin;
}

void ReleaseBin::reserve() {
    const std::size_t needed =
        waiting_.size() + static_cast<std::size_t>(std::max<std::ptrdiff_t>(reserved_, 0)) + 1;
    if (needed > waiting_.capacity())
        waiting_.reserve(std::max(needed, 2 * waiting_.capacity()));
    ++reserved_;
}

void ReleaseBin::take(Reference reference) noexcept {
    --reserved_;
    if (procedures_ != 0 && waiting_.size() < waiting_.capacity())
        waiting_.push_back(std::move(reference));
}

/// From the last one down, since what runs meanwhile adds behind and takes away again.
void ReleaseBin::empty(std::size_t mark) noexcept {
    while (waiting_.size() > mark) {
        const Reference goes = std::move(waiting_.back());
        waiting_.pop_back();
    }
}

} // namespace lumtex
