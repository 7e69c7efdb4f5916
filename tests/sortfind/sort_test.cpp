#include "list_fixture.h"
#include "values/fixed_locale.h"

#include <limits>

namespace lumtex::testing {

class Sorting : public ListFixture {
  protected:
    Sorting() { addColumns({100, 100}); }

    void fill(std::initializer_list<const char16_t*> texts) {
        for (const char16_t* text : texts)
            list.RowsAdd(Long{-1}, u"|", StringView(text));
        events.log.clear();
    }
    /// The texts of a column from the first row to the last, each followed by a blank.
    std::string column(Long number = 1) {
        String texts;
        for (Long row = 1; row <= list.RowsCount(); ++row)
            texts += list.ItemText(row, number) + u" ";
        return toUtf8(texts);
    }
};

TEST_F(Sorting, TextModeComparesLowerCasedCodeUnits) {
    fill({u"B", u"a", u"C"});
    list.Sort(1, cAscending);
    EXPECT_EQ(column(), "a B C ");
    list.Sort(1, cDescending);
    EXPECT_EQ(column(), "C B a ");
}

TEST_F(Sorting, TenStandsBeforeNineAsTextAndBehindItAsANumber) {
    fill({u"10", u"9"});
    list.Sort(1, cAscending, cSortText);
    EXPECT_EQ(column(), "10 9 ");
    list.Sort(1, cAscending, cSortNumeric);
    EXPECT_EQ(column(), "9 10 ");
}

TEST_F(Sorting, EqualTextsAloneAreTurnedRoundAndMoreThanThreeAreMixed) {
    fill({u"a|1", u"a|2", u"a|3"});
    list.Sort(1, cAscending);
    EXPECT_EQ(column(2), "3 2 1 ");
    fill({u"a|4"});
    list.Sort(1, cAscending);
    EXPECT_EQ(column(2), "1 4 3 2 ") << "all are turned round, then each half";
    list.RowsClear();
    fill({u"a|1", u"a|2"});
    list.Sort(1, cDescending);
    EXPECT_EQ(column(2), "2 1 ");
}

TEST_F(Sorting, NumbersAndDatesAreReadAsTheUserWritesThem) {
    desktop.runtime().letLocale(germanLocale());
    fill({u"1.234,56|29.02.2024", u"2,5|1.12.2023", u"-1.000|31.01.1999", u"10|05.06.2024"});
    list.Sort(1, cAscending, cSortNumeric);
    EXPECT_EQ(column(), "-1.000 2,5 10 1.234,56 ");
    list.Sort(2, cAscending, cSortDate);
    EXPECT_EQ(column(2), "31.01.1999 1.12.2023 29.02.2024 05.06.2024 ");
    list.Sort(2, cDescending, cSortDate);
    EXPECT_EQ(column(2), "05.06.2024 29.02.2024 1.12.2023 31.01.1999 ");
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(Sorting, ASingleRowIsSwappedWithItselfAndTellsSortDoneOnce) {
    fill({u"only"});
    inside.rows()[0].Selected = true;
    list.Sort(1, cAscending);
    EXPECT_EQ(column(), "only ");
    EXPECT_TRUE(inside.rows()[0].Selected);
    EXPECT_EQ(events.log, std::vector<std::string>{"SortDone"});
    EXPECT_EQ(list.SortColumnIndex(), 1);
}

TEST_F(Sorting, BlankCellsAloneAreNotReorderedAndSortDoneIsRaised) {
    fill({u"   |3", u"|1", u" |2"});
    list.Sort(2, cAscending);
    events.log.clear();
    ASSERT_TRUE(says(inside.sort(), "column=2 up=1 text=yes"));
    list.Sort(1, cDescending);
    EXPECT_EQ(column(2), "1 2 3 ");
    EXPECT_TRUE(says(inside.sort(), "column=2 up=1 text=no"));
    EXPECT_EQ(list.SortColumnIndex(), 2);
    EXPECT_EQ(events.log, std::vector<std::string>{"SortDone"});
}

TEST_F(Sorting, ATabIsNoBlank) {
    fill({u"\t|2", u"|1"});
    list.Sort(1, cAscending);
    EXPECT_TRUE(says(inside.sort(), "text=yes"));
    EXPECT_EQ(column(2), "1 2 ");
}

// Wanted: dropping the mark repaints and raises no SortDone.
TEST_F(Sorting, MinusOneDropsTheMarkWithoutSortDone) {
    fill({u"b", u"a"});
    list.Sort(1, cAscending);
    events.log.clear();
    EXPECT_EQ(paintsOf([&] { list.Sort(-1, cDescending); }), 1);
    EXPECT_EQ(list.SortColumnIndex(), -1);
    EXPECT_TRUE(says(inside.sort(), "up=0"));
    EXPECT_EQ(column(), "a b ");
    EXPECT_EQ(events.log, std::vector<std::string>{});
    list.Sort(1, cAscending);
    std::string markAtThePaint;
    desktop.onYield([&] { markAtThePaint = inside.sort(); });
    list.Sort(-1, cDescending);
    EXPECT_TRUE(says(markAtThePaint, "column=none")) << "the paint shows it no more";
}

// Wanted: SortDone comes also where nothing was sorted, and the sort itself does not repaint.
TEST_F(Sorting, WithoutAModeNothingIsReorderedAndSortDoneIsRaised) {
    fill({u"b", u"a"});
    EXPECT_EQ(paintsOf([&] {
                  list.Sort(1);
                  list.Sort(1, static_cast<cSortMode>(3));
                  list.Sort(1, static_cast<cSortMode>(-1));
              }),
              0);
    EXPECT_EQ(column(), "b a ");
    EXPECT_EQ(list.SortColumnIndex(), -1);
    EXPECT_EQ(events.log, (std::vector<std::string>{"SortDone", "SortDone", "SortDone"}));
    EXPECT_EQ(paintsOf([&] { list.Sort(1, cAscending); }), 0);
    EXPECT_EQ(column(), "a b ");
}

TEST_F(Sorting, AColumnPastTheLastDoesNothingAndRaisesNothing) {
    fill({u"b", u"a"});
    list.Sort(3, cAscending);
    list.Sort(std::numeric_limits<Long>::max(), cAscending);
    EXPECT_EQ(column(), "b a ");
    EXPECT_EQ(events.log, std::vector<std::string>{});
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(Sorting, AListWithoutRowsOrColumnsDoesNothingAndRaisesNothing) {
    list.Sort(1, cAscending);
    list.Sort(-1, cAscending);
    fill({u"b", u"a"});
    list.ColumnsClear();
    list.Sort(1, cAscending);
    EXPECT_EQ(events.log, std::vector<std::string>{});
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(Sorting, AColumnBelowOneIsReportedOnceForEachRow) {
    fill({u"b", u"a", u"c"});
    list.Sort(0, cAscending);
    EXPECT_EQ(reportCount(), 3U);
    EXPECT_EQ(lastReport(), "9 ItemText");
    list.Sort(-2, cAscending);
    EXPECT_EQ(reportCount(), 6U);
    EXPECT_EQ(column(), "b a c ");
    EXPECT_EQ(events.log, (std::vector<std::string>{"SortDone", "SortDone"}));
}

TEST_F(Sorting, TheModeIsKeptForTheMark) {
    fill({u"|b", u"|a"});
    list.Sort(2, cAscending);
    EXPECT_EQ(list.SortColumnIndex(), 2);
    EXPECT_TRUE(says(inside.sort(), "up=1"));
    list.Sort(2, cDescending);
    EXPECT_TRUE(says(inside.sort(), "up=0"));
}

TEST_F(Sorting, ColumnAllowSortingIsNotAsked) {
    fill({u"b", u"a"});
    ASSERT_FALSE(list.ColumnAllowSorting(1));
    list.Sort(1, cAscending);
    EXPECT_EQ(column(), "a b ");
}

TEST_F(Sorting, EqualKeysChangePlaces) {
    fill({u"x|1", u"x|2", u"x|3", u"x|4"});
    list.Sort(1, cAscending);
    EXPECT_EQ(column(2), "3 4 1 2 ");
    list.Sort(1, cAscending);
    EXPECT_EQ(column(2), "1 2 3 4 ");
}

// Wanted: of any other type there is no key, so that each partition swaps all the way inwards.
TEST_F(Sorting, AnUnknownTypeTurnsEachPartitionRound) {
    fill({u"a|1", u"b|2", u"c|3", u"d|4", u"e|5"});
    list.Sort(1, cAscending, static_cast<cSortType>(3));
    // All five turn round, then the two lower and the two upper of them.
    EXPECT_EQ(column(2), "4 5 3 1 2 ");
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(Sorting, TheWholeRowMoves) {
    fill({u"b", u"a"});
    RowRecord& moved = inside.rows()[0];
    moved.Height = 31;
    moved.Top = 7;
    moved.TextPosition = cTextPosBottom;
    moved.Selected = true;
    moved.Enabled = false;
    moved.Checked = true;
    list.Sort(1, cAscending);
    const RowRecord& there = inside.rows()[1];
    EXPECT_EQ(list.ItemText(2, 1), u"b");
    EXPECT_EQ(there.Height, 31);
    EXPECT_EQ(there.Top, 7);
    EXPECT_EQ(there.TextPosition, cTextPosBottom);
    EXPECT_TRUE(there.Selected);
    EXPECT_FALSE(there.Enabled);
    EXPECT_TRUE(there.Checked);
    EXPECT_FALSE(inside.rows()[0].Selected);
}

// Wanted: ListIndex, NewIndex, the top row and the anchors of the selection keep their numbers.
TEST_F(Sorting, IndicesStayWhereTheyAre) {
    fill({u"c", u"b", u"a"});
    list.letListIndex(0);
    list.letRowSelected(1, true);
    inside.letAnchor(1);
    list.Sort(1, cAscending);
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_EQ(list.NewIndex(), 2);
    EXPECT_EQ(list.TopIndex(), 0);
    EXPECT_TRUE(says(inside.selection(), "anchor=2"));
    EXPECT_EQ(list.RowSelected(3), true) << "the selection went with its row";
}

} // namespace lumtex::testing
