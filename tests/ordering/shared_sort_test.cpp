/// Ranges go from hand to hand until all is sorted or one of the threads gave up.
#include "ordering/shared_sort.h"

#include <algorithm>
#include <new>
#include <numeric>
#include <set>
#include <thread>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

using ordering::quickSortAtHand;
using ordering::SortRange;
using ordering::WaitingRanges;

/// Numbers that count the partitions, and fail at one of them.
struct FailingRows {
    static constexpr bool atHand = true;

    std::vector<Long>* values;
    Long failAt;
    Long partitions = 0;
    Long pivot = 0;

    void choosePivot(Long index) {
        if (++partitions == failAt)
            throw std::bad_alloc();
        pivot = at(index);
    }
    Long& at(Long index) const { return (*values)[static_cast<std::size_t>(index)]; }
    bool before(Long i) const { return at(i) < pivot; }
    bool behind(Long j) const { return pivot < at(j); }
    void swap(Long i, Long j) { std::swap(at(i), at(j)); }
    void crossed(Long /*i*/, Long /*j*/) {}
    void join(const FailingRows& other) { partitions += other.partitions; }
    bool pivotsAreRows() const { return true; }
    Long stopFromBelow(Long i, Long k) const { return at(i) < at(k) ? k : i; }
    Long stopFromAbove(Long i, Long k) const { return at(k) < at(i) ? k : i; }
};

std::vector<Long> shuffled(Long count) {
    std::vector<Long> values(static_cast<std::size_t>(count));
    for (Long i = 0; i < count; ++i)
        values[static_cast<std::size_t>(i)] = i * 7919 % count;
    return values;
}

TEST(SharedSort, EveryRangeIsSortedOnceByEitherThread) {
    std::vector<Long> shared = shuffled(100'000);
    FailingRows byTwo{&shared, -1};
    quickSortAtHand(byTwo, 100'000, Hands::two);
    std::vector<Long> alone = shuffled(100'000);
    FailingRows byOne{&alone, -1};
    ordering::quickSort(byOne, 0, 99'999);
    EXPECT_EQ(shared, alone);
    EXPECT_TRUE(std::is_sorted(shared.begin(), shared.end()));
    EXPECT_EQ(byTwo.partitions, byOne.partitions);
}

TEST(SharedSort, AThreadThatRunsOutOfMemoryEndsTheSortOfBoth) {
    for (const Long failAt : {1, 2, 5, 40, 1'000}) {
        std::vector<Long> values = shuffled(100'000);
        FailingRows rows{&values, failAt};
        EXPECT_THROW(quickSortAtHand(rows, 100'000, Hands::two), std::bad_alloc) << failAt;
        // Whatever the order, no row is lost.
        EXPECT_EQ(std::set<Long>(values.begin(), values.end()).size(), 100'000U) << failAt;
    }
}

TEST(SharedSort, AThreadWithoutARangeWaitsForThoseThatTheOtherLeaves) {
    WaitingRanges waiting({0, 99});
    const auto whole = waiting.next();
    ASSERT_TRUE(whole);
    std::optional<SortRange> later;
    std::jthread other([&] {
        later = waiting.next();
        waiting.finish();
    });
    waiting.add({50, 99});
    waiting.finish();
    other.join();
    ASSERT_TRUE(later);
    EXPECT_EQ(later->first, 50);
    EXPECT_FALSE(waiting.next());
}

} // namespace
} // namespace lumtex::testing
