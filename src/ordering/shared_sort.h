/// \file
/// The quick sort by two threads.
#pragma once

#include "ordering/scan_groups.h"
#include "values/side_by_side.h"

#include <condition_variable>
#include <mutex>
#include <optional>
#include <vector>

namespace lumtex::ordering {

/// Ranges that wait for whichever thread is free.
class WaitingRanges {
  public:
    explicit WaitingRanges(SortRange whole) : ranges_{whole} {}

    /// Throws std::bad_alloc.
    void add(SortRange range);
    /// Waits while a range that another thread is at may still leave some behind. None when everything is
    /// sorted, or a thread gave up. Each range given is followed by `finish` or `giveUp`.
    std::optional<SortRange> next();
    void finish();
    void giveUp();

  private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<SortRange> ranges_;
    int running_ = 0;
    bool gaveUp_ = false;
};

/// Sorts ranges until none is left. Short ones are not worth handing over.
template <RowsAtHand Rows>
void sortWaiting(Rows& rows, int mostPartings, WaitingRanges& waiting) {
    constexpr Long leastHandedOver = 4096;
    try {
        while (const auto range = waiting.next()) {
            partitionOrSort(rows, *range, mostPartings, [&](SortRange part) {
                if (part.last - part.first >= leastHandedOver)
                    waiting.add(part);
                else
                    quickSortAtHand(rows, part, mostPartings);
            });
            waiting.finish();
        }
    } catch (...) {
        waiting.giveUp();
        throw;
    }
}

/// Leaves the order that `quickSort` leaves of all `count` rows. Two threads may share the work where each
/// pivot is a value of its range, since then no range looks at another: a copy of `rows` sorts the same rows
/// with pivots of its own, and `join` tells the first what the copy found. Throws std::bad_alloc, with the
/// rows in any order.
template <RowsAtHand Rows>
void quickSortAtHand(Rows& rows, std::size_t count, Hands hands) {
    const SortRange whole{0, static_cast<Long>(count) - 1};
    const int most = mostPartings(static_cast<Long>(count));
    if (hands == Hands::one || !rows.pivotsAreRows()) {
        quickSortAtHand(rows, whole, most);
        return;
    }
    WaitingRanges waiting(whole);
    Rows others = rows;
    sideBySide([&] { sortWaiting(rows, most, waiting); }, [&] { sortWaiting(others, most, waiting); });
    rows.join(others);
}

} // namespace lumtex::ordering
