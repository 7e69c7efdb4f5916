#include "ordering/shared_sort.h"

namespace lumtex::ordering {

void WaitingRanges::add(SortRange range) {
    const std::lock_guard lock(mutex_);
    ranges_.push_back(range);
    changed_.notify_one();
}

std::optional<SortRange> WaitingRanges::next() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return gaveUp_ || !ranges_.empty() || running_ == 0; });
    if (gaveUp_ || ranges_.empty())
        return std::nullopt;
    const SortRange range = ranges_.back();
    ranges_.pop_back();
    ++running_;
    return range;
}

void WaitingRanges::finish() {
    const std::lock_guard lock(mutex_);
    if (--running_ == 0)
        changed_.notify_all();
}

void WaitingRanges::giveUp() {
    const std::lock_guard lock(mutex_);
    gaveUp_ = true;
    changed_.notify_all();
}

} // namespace lumtex::ordering
