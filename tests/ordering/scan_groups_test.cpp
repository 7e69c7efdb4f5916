/// Scans by groups swap the rows that scans of each row swap, and look at few of them.
#include "ordering/scan_groups.h"

#include <functional>
#include <limits>
#include <memory>
#include <random>
#include <string>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

/// Numbers, some of which may compare with none, and a count of the looks at them.
struct CountedRows {
    static constexpr bool atHand = true;

    explicit CountedRows(const std::vector<Double>& values) {
        for (const Double value : values)
            rows.emplace_back(value, static_cast<Long>(rows.size()));
    }

    Double at(Long index) const {
        ++looks;
        return rows[static_cast<std::size_t>(index)].first;
    }
    void choosePivot(Long index) {
        pivot = at(index);
        ++partitions;
    }
    bool before(Long i) const { return at(i) < pivot; }
    bool behind(Long j) const { return at(j) > pivot; }
    void swap(Long i, Long j) {
        std::swap(rows[static_cast<std::size_t>(i)], rows[static_cast<std::size_t>(j)]);
    }
    void crossed(Long /*i*/, Long /*j*/) { ++crossings; }
    bool pivotsAreRows() const { return true; }
    Long stopFromBelow(Long i, Long k) const { return at(i) == at(i) && !(at(k) < at(i)) ? k : i; }
    Long stopFromAbove(Long i, Long k) const { return at(i) == at(i) && !(at(i) < at(k)) ? k : i; }

    std::vector<std::pair<Double, Long>> rows; ///< with where each comes from
    Double pivot = 0;
    Long partitions = 0;
    Long crossings = 0;
    mutable std::int64_t looks = 0;
};

std::vector<Long> sourcesOf(const CountedRows& rows) {
    std::vector<Long> sources;
    for (const auto& row : rows.rows)
        sources.push_back(row.second);
    return sources;
}

void expectSameSwaps(const std::vector<Double>& values, const std::string& name) {
    SCOPED_TRACE(name + ", " + std::to_string(values.size()));
    const Long last = static_cast<Long>(values.size()) - 1;
    CountedRows literal(values);
    ordering::quickSort(literal, 0, last);
    CountedRows grouped(values);
    ordering::sortByGroups(grouped, {0, last});
    EXPECT_EQ(sourcesOf(grouped), sourcesOf(literal));
    EXPECT_EQ(grouped.partitions, literal.partitions);
    EXPECT_EQ(grouped.crossings, literal.crossings);
}

TEST(ScanGroups, RandomRowsAreSwappedAsByScansOfEachRow) {
    std::mt19937 random(20261123);
    for (const unsigned kinds : {1U, 2U, 7U, 300U, 1'000'000U}) {
        for (const unsigned count : {1U, 31U, 256U, 257U, 288U, 1'023U, 1'024U, 1'500U, 33'000U}) {
            std::vector<Double> values;
            for (unsigned i = 0; i < count; ++i)
                values.push_back(random() % kinds);
            expectSameSwaps(values, std::to_string(kinds) + " kinds");
            for (unsigned i = 0; i < count / 20; ++i)
                values[random() % count] = std::numeric_limits<Double>::quiet_NaN();
            expectSameSwaps(values, std::to_string(kinds) + " kinds and some unreadable");
        }
    }
}

struct Pattern {
    const char* name;
    std::function<Double(Long, Long)> value; ///< of a 0-based place among so many
};

const Pattern patterns[] = {
    {"organ pipe", [](Long i, Long count) { return std::min(i, count - i); }},
    {"organ pipe without equals", [](Long i, Long count) { return std::min(2 * i, 2 * (count - i) - 1); }},
    {"valley", [](Long i, Long count) { return std::max(i, count - i); }},
    {"waves", [](Long i, Long) { return i % 1'000 < 500 ? i % 500 : 499 - i % 500; }},
    {"equal", [](Long, Long) { return 7; }},
    {"sorted", [](Long i, Long) { return i; }},
};

std::vector<Double> valuesOf(const Pattern& pattern, Long count) {
    std::vector<Double> values;
    for (Long i = 0; i < count; ++i)
        values.push_back(pattern.value(i, count));
    return values;
}

TEST(ScanGroups, PatternsThatPartBadlyAreSwappedAsByScansOfEachRow) {
    for (const Pattern& pattern : patterns)
        for (const Long count : {257, 1'000, 5'000})
            expectSameSwaps(valuesOf(pattern, count), pattern.name);
}

TEST(ScanGroups, NoPatternTakesTimeThatGrowsWithTheSquareOfTheRows) {
    constexpr Long count = 200'000;
    for (const Pattern& pattern : patterns) {
        CountedRows rows(valuesOf(pattern, count));
        ordering::quickSortAtHand(rows, {0, count - 1}, ordering::mostPartings(count));
        // Scans of each row take 50,000 looks at a row for the first of them.
        EXPECT_LT(rows.looks / count, 700) << pattern.name;
        EXPECT_TRUE(std::is_sorted(rows.rows.begin(), rows.rows.end(), [](const auto& a, const auto& b) {
            return a.first < b.first;
        })) << pattern.name;
    }
}

TEST(ScanGroups, RandomRowsAreNeverSortedByGroups) {
    std::mt19937 random(20261123);
    for (const Long count : {1'000, 100'000}) {
        std::vector<Double> values;
        for (Long i = 0; i < count; ++i)
            values.push_back(random());
        CountedRows rows(values);
        CountedRows literal(values);
        ordering::quickSortAtHand(rows, {0, count - 1}, ordering::mostPartings(count));
        ordering::quickSort(literal, 0, count - 1);
        EXPECT_EQ(rows.looks, literal.looks);
    }
}

} // namespace
} // namespace lumtex::testing
