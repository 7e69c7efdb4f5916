/// \file
/// The one partition scheme that all ways of sorting share, so that they leave the same order.
#pragma once

#include "values/types.h"

#include <vector>

namespace lumtex::ordering {

/// The position in the middle of two 0-based ones; halves round to the even position.
constexpr Long middleOf(Long first, Long last) {
    const Long lower = first + (last - first) / 2;
    const bool half = (last - first) % 2 != 0;
    return half && lower % 2 != 0 ? lower + 1 : lower;
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
    struct Range {
        Long first;
        Long last;
    };
    std::vector<Range> waiting{{first, last}};
    while (!waiting.empty()) {
        const Range range = waiting.back();
        waiting.pop_back();
        Long i = range.first;
        Long j = range.last;
        rows.choosePivot(middleOf(i, j));
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
        // A scan that ran through the whole range changed nothing, and would do the same for ever.
        if (i < range.last && i != range.first)
            waiting.push_back({i, range.last});
        if (range.first < j && j != range.last)
            waiting.push_back({range.first, j});
    }
}

} // namespace lumtex::ordering
