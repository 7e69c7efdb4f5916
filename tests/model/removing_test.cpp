#include "list_fixture.h"

namespace lumtex::testing {
namespace {

class Removing : public ListFixture {
  protected:
    Removing() {
        addColumns({50, 50});
        for (const StringView text : {u"a,1", u"b,2", u"c,3", u"d,4"})
            list.RowsAdd(Long{-1}, u",", text);
    }

    /// The first column from top to bottom, as the array holds it.
    String texts() {
        String all;
        for (std::size_t row = 0; row < inside.rows().size(); ++row)
            all += list.ItemText(static_cast<Long>(row) + 1, 1);
        return all;
    }
};

TEST_F(Removing, ARowGoesAndTheOthersMoveUpWithTheirFlags) {
    list.letMultiSelect(true);
    list.letRowSelected(3, true);
    list.letRowChecked(4, true);
    list.RowsRemove(2);
    EXPECT_EQ(texts(), u"acd");
    EXPECT_TRUE(list.RowSelected(2));
    EXPECT_TRUE(list.RowChecked(3));
}

TEST_F(Removing, APlaceOutOfRangeDoesNothingButTheScrollCheck) {
    for (const Variant& place : {Variant(Long{0}), Variant(Long{-3}), Variant(Long{5}), Variant(4.2)}) {
        inside.vertical().Tag = u"";
        EXPECT_EQ(paintsOf([&] { list.RowsRemove(Variant(place)); }), 0);
        // Wanted: the scroll check comes after the repaint, and for a place out of range too.
        EXPECT_NE(inside.vertical().Tag, u"");
    }
    EXPECT_EQ(texts(), u"abcd");
    EXPECT_EQ(reportCount(), 0U);
    EXPECT_TRUE(events.log.empty());
}

TEST_F(Removing, TheScrollCheckComesAfterTheRepaint) {
    inside.vertical().Tag = u"";
    String tagDuringYield = u"none";
    // The last row moves nothing, so the only yield is the one at the end of the paint.
    desktop.onYield([&] { tagDuringYield = inside.vertical().Tag; });
    list.RowsRemove(4);
    EXPECT_EQ(tagDuringYield, u"");
    EXPECT_NE(inside.vertical().Tag, u"");
}

TEST_F(Removing, WithoutAutoCheckScrollTheBarsAreLeftAlone) {
    list.letAutoCheckScroll(false);
    inside.vertical().Tag = u"";
    list.RowsRemove(1);
    list.RowsRemove(99);
    EXPECT_EQ(inside.vertical().Tag, u"");
}

TEST_F(Removing, ThePlaceIsRoundedToEvenAndWrittenBack) {
    Variant place = 2.5;
    list.RowsRemove(place);
    EXPECT_EQ(place, Variant(Long{2}));
    EXPECT_EQ(texts(), u"acd");
    place = u"3";
    list.RowsRemove(place);
    EXPECT_EQ(place, Variant(Long{3}));
    EXPECT_EQ(texts(), u"ac");
}

TEST_F(Removing, APlaceThatIsNoNumberIsReportedAndRemovesNothing) {
    for (const Variant& place : {Variant(u"x"), Variant(Null{}), Variant(ObjectRef{})}) {
        Variant given = place;
        const std::size_t before = reportCount();
        list.RowsRemove(given);
        EXPECT_EQ(reportCount(), before + 1);
        EXPECT_EQ(given, place);
    }
    EXPECT_EQ(lastReport(), "13 RowsRemove");
    EXPECT_EQ(texts(), u"abcd");
}

TEST_F(Removing, TheOnlyRowEndsInRowsClear) {
    for (int i = 0; i < 4; ++i)
        list.RowsRemove(1);
    EXPECT_EQ(list.RowsCount(), 0);
    EXPECT_EQ(inside.rows().size(), 1U);
    EXPECT_TRUE(inside.ArrDim(Long{0}));
}

TEST_F(Removing, ACheckedCellLowersTheCountOfItsColumn) {
    list.letItemChecked(2, 1, true);
    list.letItemChecked(2, 2, true);
    list.letItemChecked(3, 2, true);
    list.RowsRemove(2);
    EXPECT_EQ(list.ItemsCheckedCount(1), 0);
    EXPECT_EQ(list.ItemsCheckedCount(2), 1);
    EXPECT_EQ(list.ItemsCheckedCount(), 1);
}

// Wanted: ListIndex, NewIndex and the top row keep their numbers.
TEST_F(Removing, IndicesKeepTheirNumbersAndAnEmptyListOnlyHidesThem) {
    list.letListIndex(3);
    for (int i = 0; i < 4; ++i)
        list.RowsRemove(1);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.NewIndex(), 3);
    list.RowsAdd(Long{-1}, u",", u"e,5");
    EXPECT_EQ(list.ListIndex(), 3);
}

TEST_F(Removing, AHostThatFindsMoreToDoHasItsTurnAfterTheNextRow) {
    list.letAutoRedraw(false);
    String seen;
    desktop.onYield([&] { desktop.onYield([&] { seen = texts(); }); });
    list.RowsRemove(1);
    EXPECT_EQ(seen, u"bccd");
}

TEST_F(Removing, WhatAHostLeavesWaitingInAReportComesAfterThatRow) {
    list.letAutoRedraw(false);
    std::size_t reportsBefore = 0;
    desktop.onYield([&] {
        list.RowsClear();
        desktop.runtime().whileBoxIsOpen = [&] {
            desktop.onYield([&] { reportsBefore = reportCount(); });
            desktop.runtime().whileBoxIsOpen = nullptr;
        };
    });
    list.RowsRemove(1);
    EXPECT_EQ(reportsBefore, 1U);
    EXPECT_EQ(reportCount(), 2U);
}

// Wanted: the host gets its turn after each row, and sees the row behind the gap twice.
TEST_F(Removing, AHostThatLooksDuringTheMoveSeesTheHalfMovedRows) {
    list.letAutoRedraw(false);
    std::vector<String> seen;
    desktop.onYield([&] { seen.push_back(texts()); }, 3);
    list.RowsRemove(1);
    EXPECT_EQ(seen, (std::vector<String>{u"bbcd", u"bccd", u"bcdd"}));
    EXPECT_EQ(texts(), u"bcd");
}

TEST_F(Removing, ACellWrittenDuringTheMoveIsWrittenInBothPlaces) {
    list.letAutoRedraw(false);
    desktop.onYield([&] { list.letItemText(1, 1, u"X"); });
    list.RowsRemove(1);
    EXPECT_EQ(texts(), u"Xcd");
}

TEST_F(Removing, AHostThatClearsDuringTheMoveCostsAReportForEachRowLeft) {
    list.letAutoRedraw(false);
    desktop.onYield([&] { list.RowsClear(); });
    list.RowsRemove(1);
    EXPECT_EQ(reportCount(), 2U);
    EXPECT_EQ(lastReport(), "9 RowsRemove");
    EXPECT_EQ(list.RowsCount(), 0);
}

TEST_F(Removing, AHostThatAddsDuringTheMoveLosesTheLastRow) {
    list.letAutoRedraw(false);
    desktop.onYield([&] { list.RowsAdd(Long{-1}, u",", u"e,5"); });
    list.RowsRemove(1);
    EXPECT_EQ(texts(), u"bcdd");
}

TEST_F(Removing, SelectedRowsGoWithOnePaint) {
    list.letMultiSelect(true);
    for (const Long row : {1, 2, 4})
        list.letRowSelected(row, true);
    EXPECT_EQ(list.RowSelectedCount(), 3);
    EXPECT_EQ(paintsOf([&] { list.RowsSelectedRemove(); }), 1);
    EXPECT_EQ(texts(), u"c");
    EXPECT_EQ(list.RowSelectedCount(), 0);
    EXPECT_TRUE(says(inside.painting(), "held=no"));
}

TEST_F(Removing, RemovingAllSelectedRowsPaintsWhateverAutoRedrawSays) {
    list.letMultiSelect(true);
    for (Long row = 1; row <= 4; ++row)
        list.letRowSelected(row, true);
    list.letAutoRedraw(false);
    EXPECT_EQ(paintsOf([&] { list.RowsSelectedRemove(); }), 1);
    EXPECT_EQ(list.RowsCount(), 0);
    EXPECT_EQ(list.RowSelectedCount(), 0);
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(Removing, WhatAHostSwitchesDuringTheRemovalIsSwitchedBack) {
    list.letRowSelected(1, true);
    desktop.onYield([&] {
        list.letAutoRedraw(false);
        list.letAutoCheckScroll(false);
    });
    list.RowsSelectedRemove();
    EXPECT_TRUE(list.AutoCheckScroll());
    list.letAutoRedraw(true);
    EXPECT_EQ(texts(), u"bcd");
}

TEST_F(Removing, OfTheSelectedRowsHoldsBothSwitchesOffAndTellsNobody) {
    list.letRowSelected(1, true);
    host.changed.clear();
    int turns = 0;
    desktop.onYield(
        [&] {
            if (says(inside.painting(), "held=no")) // the paint at the end has its own
                return;
            ++turns;
            EXPECT_FALSE(list.AutoCheckScroll());
            EXPECT_FALSE(list.AutoRedraw());
        },
        4);
    list.RowsSelectedRemove();
    EXPECT_EQ(turns, 3);
    EXPECT_TRUE(list.AutoCheckScroll());
    EXPECT_TRUE(list.AutoRedraw());
    EXPECT_TRUE(host.changed.empty());
}

TEST_F(Removing, OfTheSelectedRowsChecksTheBarsBeforeItPaints) {
    inside.rows()[3].Selected = true;
    String tagDuringYield = u"none";
    // The last row moves nothing, so the only yield is the one at the end of the paint.
    desktop.onYield([&] { tagDuringYield = inside.vertical().Tag; });
    inside.vertical().Tag = u"";
    list.RowsSelectedRemove();
    EXPECT_EQ(tagDuringYield, u"True");
}

TEST_F(Removing, ANewListTakesNoRemoval) {
    lmListView fresh{desktop, host, events};
    fresh.UserControl_InitProperties();
    fresh.RowsRemove(1);
    EXPECT_EQ(reportCount(), 0U);
    // Wanted: the first row is looked at before the count, so a list that never had rows reports its absence.
    fresh.RowsSelectedRemove();
    EXPECT_EQ(reportCount(), 1U);
    EXPECT_EQ(lastReport(), "9 RowSelected");
    EXPECT_EQ(fresh.RowSelectedCount(), 0);
    EXPECT_EQ(lastReport(), "9 RowSelectedCount");
}

TEST_F(Removing, OfAllRowsChecksTheBarsAfterThePaintWhereThatIsAutomatic) {
    String tagAtThePaint;
    desktop.onYield([&] { tagAtThePaint = inside.vertical().Tag; });
    EXPECT_EQ(inside.vertical().Tag, u"True");
    list.RowsClear();
    EXPECT_EQ(tagAtThePaint, u"True");
    EXPECT_EQ(inside.vertical().Tag, u"False");
    inside.vertical().Tag = u"";
    list.letAutoCheckScroll(false);
    list.RowsClear();
    EXPECT_EQ(inside.vertical().Tag, u"");
}

TEST_F(Removing, OfAllRowsLeavesNoColumnWithCheckedCells) {
    list.letItemChecked(1, 1, true);
    list.letItemChecked(2, 2, true);
    list.RowsClear();
    for (const std::unique_ptr<ColumnHeader>& column : inside.columns())
        EXPECT_EQ(column->ItemsChecked, 0);
}

TEST_F(Removing, AClearedListHasNoSelectedRowsAndReportsNothing) {
    list.RowsClear();
    list.RowsSelectedRemove();
    EXPECT_EQ(list.RowSelectedCount(), 0);
    EXPECT_EQ(reportCount(), 0U);
}

// Wanted: every index is a wrong one once there are columns, so no column ever goes.
TEST_F(Removing, AColumnNeverGoesButTheViewIsRefreshed) {
    addColumns({50});
    inside.vertical().Tag = u"";
    EXPECT_EQ(paintsOf([&] { list.ColumnsRemove(1); }), 1);
    EXPECT_EQ(list.ColumnsCount(), 3);
    EXPECT_NE(inside.vertical().Tag, u"");
    list.ColumnsClear();
    EXPECT_EQ(paintsOf([&] { list.ColumnsRemove(1); }), 0);
}

} // namespace
} // namespace lumtex::testing
