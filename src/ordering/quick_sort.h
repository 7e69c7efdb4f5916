/// \file
/// The one partition scheme that all ways of sorting share, so that they leave the same order.
#pragma once

#include "values/types.h"

#include <array>
#include <vector>

namespace lumtex::ordering {

/// The position in the middle of two 0-based ones; halves round to the even position.
constexpr Long middleOf(Long first, Long last) {
    const Long lower = first + (last - first) / 2;
    const bool half = (last - first) % 2 != 0;
    return half && lower % 2 != 0 ? lower + 1 : lower;
}

/// Rows whose keys lie ready: asking about them has no effect, and every position of a range can be asked
/// about. Besides what `quickSort` asks for they give
///
///     pivotsAreRows()            whether each pivot is a value of its range: then no scan leaves the range
///     stopFromBelow(i, k)        the row of these two at which a scan with `before` stops if it does at the
///                                other, whatever the pivot
///     stopFromAbove(i, k)        the same with `behind`
template <class Rows>
concept RowsAtHand = Rows::atHand;

/// Does what the scans of a partition do from `i` and `j` on as long as they stay more than two blocks apart:
/// swaps the first row that does not lie before the pivot with the last that does not lie behind it, and so
/// on. The questions of a block are asked one after the other, without a branch on any answer, since half of
/// these would be guessed wrongly.
template <class Rows>
void swapBlocks(Rows& rows, Long& i, Long& j) {
    constexpr Long blockSize = 64;
    /// Rows of one side that must change places, by their distance from where the block begins.
    struct Block {
        std::array<Byte, blockSize> places;
        std::size_t next = 0;
        std::size_t count = 0;
        bool isDone() const { return next == count; }
    };
    Block lower;
    Block upper;
    while (j - i >= 2 * blockSize) {
        if (lower.isDone()) {
            lower.next = lower.count = 0;
            for (Long k = 0; k < blockSize; ++k) {
                lower.places[lower.count] = static_cast<Byte>(k);
                lower.count += rows.before(i + k) ? 0U : 1U;
            }
        }
        if (upper.isDone()) {
            upper.next = upper.count = 0;
            for (Long k = 0; k < blockSize; ++k) {
                upper.places[upper.count] = static_cast<Byte>(k);
                upper.count += rows.behind(j - k) ? 0U : 1U;
            }
        }
        while (!lower.isDone() && !upper.isDone())
            rows.swap(i + lower.places[lower.next++], j - upper.places[upper.next++]);
        i += lower.isDone() ? blockSize : 0;
        j -= upper.isDone() ? blockSize : 0;
    }
    // At most one side has rows left that wait for one of the other.
    if (!lower.isDone())
        i += lower.places[lower.next];
    if (!upper.isDone())
        j -= upper.places[upper.next];
}

/// Rows that are still to be sorted; both positions count from 0 and belong to it.
struct SortRange {
    Long first;
    Long last;
    int partings = 0; ///< how many partitions led to it
};

/// Hands `later` the ranges that are left of `range` once its scans have met at `i` and `j`, the upper one
/// first.
template <class Later>
void leaveRest(SortRange range, Long i, Long j, Later later) {
    // A scan that ran through the whole range changed nothing, and would do the same for ever.
    if (i < range.last && i != range.first)
        later(SortRange{i, range.last, range.partings + 1});
    if (range.first < j && j != range.last)
        later(SortRange{range.first, j, range.partings + 1});
}

/// Parts the rows of a range at the pivot in its middle, then hands `later` the ranges that are left to sort,
/// the upper one first. What `rows` is: see `quickSort`.
template <class Rows, class Later>
void partition(Rows& rows, SortRange range, Later later) {
    Long i = range.first;
    Long j = range.last;
    rows.choosePivot(middleOf(i, j));
    if constexpr (RowsAtHand<Rows>)
        swapBlocks(rows, i, j);
    do {
        while (rows.before(i))
            ++i;
        while (rows.behind(j))
            --j;
        if (i <= j) {
            rows.swap(i, j);
            ++i;
            --j;
        } else {
            rows.crossed(i, j);
        }
    } while (i <= j);
    leaveRest(range, i, j, later);
}

/// A quick sort after Hoare with the pivot in the middle, from `first` to `last`, both 0-based. `rows` gives
///
///     choosePivot(index)         keeps the value of that row as the pivot
///     before(i)                  whether row i lies before the pivot
///     behind(j)                  whether row j lies behind the pivot
///     swap(i, j)                 exchanges two rows, which may be the same
///     crossed(i, j)              a partition ended with scans that passed each other
///
/// A scan asks about rows outside first to last where the pivot is no value of the range. `before` and
/// `behind` must therefore answer False for positions outside the array.
///
/// The halves that still wait stand on the heap: a sequence made to split badly must not exhaust the stack.
/// They come up in the order of the recursion, the lower half first.
template <class Rows>
void quickSort(Rows& rows, Long first, Long last) {
    std::vector<SortRange> waiting{{first, last}};
    while (!waiting.empty()) {
        const SortRange range = waiting.back();
        waiting.pop_back();
        partition(rows, range, [&](SortRange part) { waiting.push_back(part); });
    }
}

} // namespace lumtex::ordering
