#include "records/row_array.h"

#include <algorithm>
#include <numeric>
#include <random>

namespace lumtex::testing {
namespace {

/// Rows that can be told apart by their height, and what they should be.
class Rows : public ::testing::Test {
  protected:
    void append() {
        rows.append();
        // A row where one was before has nothing of it.
        EXPECT_EQ(rows.back().items.count(), 0U);
        EXPECT_EQ(rows.back().Height, 0);
        EXPECT_FALSE(rows.back().Selected);
        rows.back().Height = ++made_;
        rows.back().Selected = true;
        rows.back().items = Items::create(1);
        rows.back().items.append(u"x", StyleLease(CellStyle{}));
        expected.push_back(made_);
    }
    void moveLastTo(std::size_t position) {
        rows.moveLastTo(position);
        expected.insert(expected.begin() + static_cast<std::ptrdiff_t>(position), expected.back());
        expected.pop_back();
    }
    void remove(std::size_t position) {
        rows.remove(position);
        expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(position));
    }
    std::size_t below(std::size_t limit) { return random_() % limit; }
    std::vector<const RowRecord*> places() const {
        std::vector<const RowRecord*> all;
        for (const RowRecord& row : rows)
            all.push_back(&row);
        return all;
    }

    void check() {
        ASSERT_EQ(rows.size(), expected.size());
        std::size_t i = 0;
        for (const RowRecord& row : rows) {
            ASSERT_EQ(row.Height, expected[i]) << "row " << i;
            ASSERT_EQ(row.items.count(), 1U) << "row " << i;
            ASSERT_EQ(&row, &rows[i]);
            ++i;
        }
    }

    RowArray rows;
    std::vector<Single> expected;

  private:
    Single made_ = 0;
    std::mt19937 random_{20261122};
};

TEST_F(Rows, ComeAndGoAnywhereLikeThoseOfAVector) {
    for (int round = 0; round < 12'000; ++round) {
        // Growing at first, shrinking in the end, past several chunks in between.
        const bool grows = below(100) < (round < 8'000 ? 75U : 20U);
        if (grows || rows.empty()) {
            append();
            const std::size_t kind = below(4);
            if (kind == 0)
                moveLastTo(0);
            else if (kind == 1)
                moveLastTo(below(rows.size()));
        } else {
            const std::size_t kind = below(4);
            if (kind == 0) {
                rows.dropLast();
                expected.pop_back();
            } else {
                remove(kind == 1 ? 0 : kind == 2 ? rows.size() - 1 : below(rows.size()));
            }
        }
        if (round % 97 == 0)
            check();
        if (HasFatalFailure())
            return;
    }
    EXPECT_GT(rows.size(), 1000U);
}

TEST_F(Rows, ComeAndGoAroundTheEndsOfAChunk) {
    for (const std::size_t count : {1U, 3U, 4U, 5U, 1023U, 1024U, 1025U, 2048U, 3000U}) {
        while (rows.size() < count)
            append();
        for (const std::size_t position : {std::size_t{0},
                                           count / 8,
                                           count / 4,
                                           count * 3 / 8,
                                           count / 2,
                                           count - 1,
                                           std::min(count - 1, std::size_t{1023}),
                                           std::min(count - 1, std::size_t{1024})}) {
            append();
            moveLastTo(position);
            check();
            remove(position);
            check();
        }
    }
}

TEST_F(Rows, PassThroughLikeAQueueFromEitherEnd) {
    for (const bool backwards : {false, true}) {
        while (rows.size() < 2500)
            append();
        for (int i = 0; i < 6000; ++i) {
            append();
            if (backwards)
                moveLastTo(0);
            remove(backwards ? rows.size() - 1 : 0);
            if (i % 500 == 0)
                check();
        }
        check();
    }
}

TEST_F(Rows, ComeAndGoAtTheFrontOfManyWithoutMovingThem) {
    while (rows.size() < 5000)
        append();
    for (int i = 0; i < 1500; ++i) {
        const std::vector<const RowRecord*> before =
            i % 100 == 0 ? places() : std::vector<const RowRecord*>();
        append();
        moveLastTo(0);
        for (std::size_t row = 0; row < before.size(); ++row)
            ASSERT_EQ(&rows[row + 1], before[row]) << "row " << row << " in turn " << i;
    }
    check();
    for (int i = 0; i < 1500; ++i) {
        const std::vector<const RowRecord*> before =
            i % 100 == 0 ? places() : std::vector<const RowRecord*>();
        remove(0);
        for (std::size_t row = 1; row < before.size(); ++row)
            ASSERT_EQ(&rows[row - 1], before[row]) << "row " << row << " in turn " << i;
    }
    check();
}

TEST_F(Rows, LeaveNothingWhereTheyWere) {
    while (rows.size() < 5000)
        append();
    for (int i = 0; i < 200; ++i)
        remove(700);
    for (int i = 0; i < 1024; ++i)
        remove(0);
    while (rows.size() < 6000)
        append();
    check();
}

TEST_F(Rows, TakeTheOrderThatTheyAreGiven) {
    for (const std::size_t count : {0U, 1U, 7U, 1024U, 2500U}) {
        while (rows.size() < count) {
            append();
            moveLastTo(below(4) == 0 ? 0 : below(rows.size()));
        }
        std::vector<std::uint32_t> sources(count);
        std::iota(sources.begin(), sources.end(), 0U);
        for (std::size_t i = count; i > 1; --i)
            std::swap(sources[i - 1], sources[below(i)]);
        rows.reorder(sources);
        std::vector<Single> ordered;
        for (const std::uint32_t source : sources)
            ordered.push_back(expected[source]);
        expected = ordered;
        check();
    }
}

TEST_F(Rows, TakeTheirOrderFromTwoThreadsWhereTheyAreMany) {
    // At last the list has room for more rows than it holds, behind the last and in front of the first.
    for (int i = 0; i < 60'000; ++i)
        append();
    for (int i = 0; i < 300; ++i)
        remove(0);
    while (rows.size() > 21'000) {
        rows.dropLast();
        expected.pop_back();
    }
    for (int turn = 0; turn < 2; ++turn) {
        std::vector<std::uint32_t> sources(rows.size());
        std::iota(sources.begin(), sources.end(), 0U);
        std::shuffle(sources.begin(), sources.end(), std::mt19937(20261123));
        std::vector<Single> ordered;
        for (const std::uint32_t source : sources)
            ordered.push_back(expected[source]);
        rows.reorder(sources);
        expected = ordered;
        check();
    }
}

TEST_F(Rows, AreSweptLikeThoseOfAVector) {
    for (int round = 0; round < 60; ++round) {
        while (rows.size() < 3000) {
            append();
            moveLastTo(below(rows.size()));
        }
        const std::size_t from = below(2) * below(3000);
        const std::size_t end = from + below(4000);
        const std::size_t oneOf = 1 + below(4);
        std::vector<Single> left(expected.begin(), expected.begin() + static_cast<std::ptrdiff_t>(from));
        std::size_t asked = from;
        std::size_t firstUnasked = from;
        for (std::size_t i = from; i < expected.size(); ++i) {
            const bool goes = i < end && static_cast<std::size_t>(expected[i]) % oneOf == 0;
            if (!goes)
                left.push_back(expected[i]);
            firstUnasked += i < end && !goes ? 1 : 0;
        }
        const std::size_t next = rows.sweep(from, [&](const RowRecord& row) {
            using enum RowArray::Verdict;
            EXPECT_EQ(row.Height, expected[asked]);
            if (asked++ == end)
                return leave;
            return static_cast<std::size_t>(row.Height) % oneOf == 0 ? go : stay;
        });
        EXPECT_EQ(next, firstUnasked);
        expected = left;
        check();
        append();
        check();
        if (HasFatalFailure())
            return;
    }
}

/// Few rows have a height, as where a list of many was painted.
class MeasuredRows : public ::testing::Test {
  protected:
    std::size_t below(std::size_t limit) { return random_() % limit; }
    void measure(std::size_t position) {
        rows[position].Height = 20;
        rows.noteHeight(position);
    }
    void change() {
        using enum RowArray::Verdict;
        const std::size_t size = rows.size();
        switch (below(7)) {
        case 0:
            rows.append();
            rows.moveLastTo(below(size + 1));
            break;
        case 1:
            rows.remove(below(size));
            break;
        case 2:
            rows.swap(below(size), below(size));
            break;
        case 3:
            rows.copy(below(size), below(size));
            break;
        case 4:
            rows.sweep(below(size), [&](const RowRecord&) { return below(50) == 0 ? go : stay; });
            break;
        case 5: {
            std::vector<std::uint32_t> sources(size);
            std::iota(sources.begin(), sources.end(), 0U);
            std::shuffle(sources.begin(), sources.end(), random_);
            rows.reorder(sources);
            break;
        }
        default:
            measure(below(size));
        }
    }
    /// Where walks that stop at each row that may have a height have been.
    std::vector<bool> reached() const {
        std::vector<bool> seen(rows.size());
        for (std::size_t i = rows.nextWithHeight(0); i < rows.size(); i = rows.nextWithHeight(i + 1))
            seen[i] = true;
        return seen;
    }

    RowArray rows;

  private:
    std::mt19937 random_{20261123};
};

TEST_F(MeasuredRows, AreFoundWhereverTheyWent) {
    for (int round = 0; round < 300; ++round) {
        while (rows.size() < 20'000)
            rows.append();
        if (round % 30 == 0) {
            rows.clear();
            EXPECT_EQ(rows.nextWithHeight(0), 0U);
            continue;
        }
        change();
        const std::vector<bool> seen = reached();
        for (std::size_t i = 0; i < rows.size(); ++i)
            ASSERT_TRUE(seen[i] || rows[i].Height == 0) << "row " << i << " in round " << round;
    }
}

TEST_F(MeasuredRows, LetWalksPassTheOthersByTheThousand) {
    while (rows.size() < 10'000)
        rows.append();
    EXPECT_EQ(rows.nextWithHeight(0), 10'000U);
    measure(5'000);
    EXPECT_GT(rows.nextWithHeight(0), 3'000U);
    EXPECT_LE(rows.nextWithHeight(0), 5'000U);
    EXPECT_EQ(rows.nextWithHeight(9'000), 10'000U);
    EXPECT_EQ(rows.nextWithHeight(10'000), 10'000U);
}

TEST_F(Rows, GoAllAndComeAgain) {
    for (const std::size_t count : {0U, 3U, 2500U, 40U}) {
        while (rows.size() < count) {
            append();
            moveLastTo(0);
        }
        if (count == 40)
            rows.release();
        else
            rows.clear();
        expected.clear();
        check();
        EXPECT_TRUE(rows.empty());
        append();
        moveLastTo(0);
        check();
    }
}

TEST_F(Rows, ShareTheirCellsWithNobodyOnceTheyAreGone) {
    for (int i = 0; i < 5; ++i)
        append();
    const Items cells = rows[2].items;
    EXPECT_TRUE(cells.sharesWith(rows[2].items));
    rows.remove(2);
    for (const RowRecord& row : rows)
        EXPECT_FALSE(cells.sharesWith(row.items));
    EXPECT_EQ(cells.count(), 1U);
}

} // namespace
} // namespace lumtex::testing
