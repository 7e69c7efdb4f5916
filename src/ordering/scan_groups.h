/// \file
/// Partitions whose scans need no look at each row.
#pragma once

#include "ordering/quick_sort.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <vector>

namespace lumtex::ordering {

/// Which row of a group stops a scan wherever one of the group does: a scan that would go past this one goes
/// past the whole group. Groups of groups make the longest scan a short one.
///
/// For ranges whose pivots are values of them, so that each scan has a row where it is known to stop.
template <RowsAtHand Rows>
class ScanGroups {
  public:
    /// Throws std::bad_alloc, and so do `note` and `update`.
    ScanGroups(const Rows& rows, SortRange range)
        : rows_(rows), first_(range.first), count_(static_cast<std::size_t>(range.last - range.first) + 1) {
        for (std::size_t count = count_; count > groupSize; count = levels_.back().size()) {
            levels_.emplace_back((count + groupSize - 1) / groupSize);
            for (std::size_t group = 0; group < levels_.back().size(); ++group)
                choose(levels_.size() - 1, group);
        }
    }

    /// The first row from `i` on that stops a scan from below; that at `limit` does.
    Long nextStop(Long i, Long limit) const {
        const std::size_t end = placeOf(limit);
        std::size_t row = placeOf(i);
        while (row < end) {
            std::size_t passed = 0;
            std::size_t size = groupSize;
            for (std::size_t level = 0; level < levels_.size() && row % size == 0 && row + size <= end &&
                                        rows_.before(levels_[level][row / size].below);
                 ++level, size *= groupSize)
                passed = size;
            if (passed == 0 && !rows_.before(rowAt(row)))
                break;
            row += passed == 0 ? 1 : passed;
        }
        return rowAt(row);
    }
    /// The last row up to `j` that stops a scan from above; that at `limit` does.
    Long lastStop(Long j, Long limit) const {
        const std::size_t end = placeOf(limit) + 1;
        std::size_t behind = placeOf(j) + 1;
        while (behind > end) {
            std::size_t passed = 0;
            std::size_t size = groupSize;
            for (std::size_t level = 0;
                 level < levels_.size() && behind % size == 0 && behind - size >= end &&
                 rows_.behind(levels_[level][behind / size - 1].above);
                 ++level, size *= groupSize)
                passed = size;
            if (passed == 0 && !rows_.behind(rowAt(behind - 1)))
                break;
            behind -= passed == 0 ? 1 : passed;
        }
        return rowAt(behind - 1);
    }

    /// These two change places. What that means for their groups waits for `update`: until then no scan may
    /// ask about the groups of rows that scans have passed.
    void note(Long i, Long j) {
        noteGroup(fromBelow_, placeOf(i) / groupSize);
        noteGroup(fromAbove_, placeOf(j) / groupSize);
    }
    void update() {
        for (std::vector<std::size_t>* const changed : {&fromBelow_, &fromAbove_}) {
            for (std::size_t level = 0; level < levels_.size(); ++level) {
                std::size_t kept = 0;
                for (const std::size_t group : *changed) {
                    choose(level, group);
                    if (kept == 0 || (*changed)[kept - 1] != group / groupSize)
                        (*changed)[kept++] = group / groupSize;
                }
                changed->resize(kept);
            }
            changed->clear();
        }
    }

  private:
    static constexpr std::size_t groupSize = 8;

    /// Rows that stop a scan from either side wherever one of the group does.
    struct Stops {
        Long below = 0;
        Long above = 0;
    };

    std::size_t placeOf(Long row) const { return static_cast<std::size_t>(row - first_); }
    Long rowAt(std::size_t place) const { return first_ + static_cast<Long>(place); }

    static void noteGroup(std::vector<std::size_t>& changed, std::size_t group) {
        if (changed.empty() || changed.back() != group)
            changed.push_back(group);
    }
    void choose(std::size_t level, std::size_t group) {
        const std::size_t members = level == 0 ? count_ : levels_[level - 1].size();
        const std::size_t end = std::min(members, (group + 1) * groupSize);
        const auto member = [&](std::size_t place) {
            return level == 0 ? Stops{rowAt(place), rowAt(place)} : levels_[level - 1][place];
        };
        Stops stops = member(group * groupSize);
        for (std::size_t place = group * groupSize + 1; place < end; ++place) {
            const Stops other = member(place);
            stops = {rows_.stopFromBelow(stops.below, other.below),
                     rows_.stopFromAbove(stops.above, other.above)};
        }
        levels_[level][group] = stops;
    }

    const Rows& rows_;
    Long first_;
    std::size_t count_;
    std::vector<std::vector<Stops>> levels_; ///< the groups of rows first
    std::vector<std::size_t> fromBelow_;     ///< groups with a row that changed, each once
    std::vector<std::size_t> fromAbove_;
};

/// Below, a look at each row costs less than groups of them.
constexpr Long leastGroupedRows = 256;

/// Does what `quickSort` does, in a time that does not grow with the square of the rows however badly the
/// pivots fall. Throws std::bad_alloc, with the rows in any order.
template <RowsAtHand Rows>
void sortByGroups(Rows& rows, SortRange whole) {
    ScanGroups<Rows> groups(rows, whole);
    std::vector<SortRange> waiting{whole};
    while (!waiting.empty()) {
        const SortRange range = waiting.back();
        waiting.pop_back();
        if (range.last - range.first < leastGroupedRows) {
            quickSort(rows, range.first, range.last);
            continue;
        }
        Long i = range.first;
        Long j = range.last;
        // Where the scans are known to stop: at the pivot, then at the rows that were swapped last.
        Long stopFromBelow = middleOf(i, j);
        Long stopFromAbove = stopFromBelow;
        rows.choosePivot(stopFromBelow);
        do {
            i = groups.nextStop(i, stopFromBelow);
            j = groups.lastStop(j, stopFromAbove);
            if (i <= j) {
                rows.swap(i, j);
                groups.note(i, j);
                stopFromBelow = j--;
                stopFromAbove = i++;
            } else {
                rows.crossed(i, j);
            }
        } while (i <= j);
        groups.update();
        leaveRest(range, i, j, [&](SortRange part) { waiting.push_back(part); });
    }
}

/// How often a range of so many rows is parted before its pivots are taken for ill-chosen: three times as
/// often as by pivots that halve it. Random rows hardly ever come so far.
inline int mostPartings(Long rows) {
    return 3 * static_cast<int>(std::bit_width(static_cast<std::uint32_t>(rows)));
}

/// As `partition`, unless the range came from too many partings: then it is sorted whole.
template <RowsAtHand Rows, class Later>
void partitionOrSort(Rows& rows, SortRange range, int mostPartings, Later later) {
    if (range.partings > mostPartings && range.last - range.first >= leastGroupedRows && rows.pivotsAreRows())
        sortByGroups(rows, range);
    else
        partition(rows, range, later);
}

/// Leaves the order that `quickSort` leaves. Throws std::bad_alloc, with the rows in any order.
template <RowsAtHand Rows>
void quickSortAtHand(Rows& rows, SortRange whole, int mostPartings) {
    std::vector<SortRange> waiting{whole};
    while (!waiting.empty()) {
        const SortRange range = waiting.back();
        waiting.pop_back();
        partitionOrSort(rows, range, mostPartings, [&](SortRange part) { waiting.push_back(part); });
    }
}

} // namespace lumtex::ordering
