/// \file
/// The quick sort by two threads.
#pragma once

#include "ordering/quick_sort.h"
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
template <class Rows>
void sortWaiting(Rows& rows, WaitingRanges& waiting) {
    constexpr Long leastHandedOver = 4096;
    try {
        while (const auto range = waiting.next()) {
            partition(rows, *range, [&](SortRange part) {
                if (part.last - part.first >= leastHandedOver)
                    waiting.add(part);
                else
                    quickSort(rows, part.first, part.last);
            });
            waiting.finish();
        }
    } catch (...) {
        waiting.giveUp();
        throw;
    }
}

/// Leaves the order that `quickSort` leaves: no range looks at another, as long as each pivot is a value of
/// its range, which the caller promises. A copy of `rows` sorts the same rows with a pivot of its own, and
/// `join` tells the first what the copy found. Throws std::bad_alloc, with the rows in any order.
template <class Rows>
void quickSortSideBySide(Rows& rows, Long first, Long last) {
    WaitingRanges waiting({first, last});
    Rows others = rows;
    sideBySide([&] { sortWaiting(rows, waiting); }, [&] { sortWaiting(others, waiting); });
    rows.join(others);
}

} // namespace lumtex::ordering
