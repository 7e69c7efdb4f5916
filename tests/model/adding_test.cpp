#include "list_fixture.h"

namespace lumtex::testing {

using Adding = ListFixture;

TEST_F(Adding, AListWithoutColumnsTakesNoRowsAndReportsNothing) {
    list.RowsAdd();
    EXPECT_EQ(list.RowsCount(), 0);
    EXPECT_EQ(list.NewIndex(), 0) << "stays as it was";
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(Adding, AnIndexPastTheEndAppendsAndIsWrittenBack) {
    addColumns({50});
    addRows(3);
    Variant index = Long{99};
    list.RowsAdd(index);
    EXPECT_EQ(index.toLong(), 3);
    EXPECT_EQ(list.RowsCount(), 4);
    EXPECT_EQ(list.NewIndex(), 3);
}

TEST_F(Adding, ANegativeIndexAppendsAndIsWrittenBack) {
    addColumns({50});
    addRows(2);
    Variant index = Long{-1};
    list.RowsAdd(index);
    EXPECT_EQ(index.toLong(), 2);
}

TEST_F(Adding, AnIndexThatIsNoNumberIsReportedAndAppends) {
    addColumns({50});
    addRows(1, u"a");
    Variant index = u"first";
    list.RowsAdd(index, u",", u"b");
    EXPECT_EQ(list.ItemText(2, 1), u"b");
    EXPECT_EQ(lastReport(), "13 RowsAdd");
}

TEST_F(Adding, ATextIndexThatIsANumberInsertsThere) {
    addColumns({50});
    addRows(2, u"a");
    Variant index = u"1";
    list.RowsAdd(index, u",", u"b");
    EXPECT_EQ(list.ItemText(2, 1), u"b");
    EXPECT_EQ(list.NewIndex(), 1);
}

TEST_F(Adding, PiecesBeyondTheColumnsAreDropped) {
    addColumns({50, 50});
    addRows(1, u"a,b,c");
    EXPECT_EQ(list.ItemText(1, 1), u"a");
    EXPECT_EQ(list.ItemText(1, 2), u"b");
    EXPECT_EQ(inside.rows()[0].items.count(), 2U);
}

TEST_F(Adding, MissingPiecesAreEmpty) {
    addColumns({50, 50, 50});
    addRows(1, u"a");
    EXPECT_EQ(list.ItemText(1, 1), u"a");
    EXPECT_EQ(list.ItemText(1, 2), u"");
    EXPECT_EQ(list.ItemText(1, 3), u"");
}

TEST_F(Adding, WithAnEmptySeparatorTheWholeTextIsTheFirstPiece) {
    addColumns({50, 50});
    list.RowsAdd(Long{-1}, u"", u"a,b");
    EXPECT_EQ(list.ItemText(1, 1), u"a,b");
    EXPECT_EQ(list.ItemText(1, 2), u"");
}

TEST_F(Adding, ASeparatorMayBeSeveralUnitsLong) {
    addColumns({50, 50});
    list.RowsAdd(Long{-1}, u"--", u"a--b-c");
    EXPECT_EQ(list.ItemText(1, 1), u"a");
    EXPECT_EQ(list.ItemText(1, 2), u"b-c");
}

TEST_F(Adding, AnAbsentTextGivesEmptyCells) {
    addColumns({50, 50});
    list.RowsAdd();
    EXPECT_EQ(list.ItemText(1, 2), u"");
    EXPECT_EQ(inside.rows()[0].items.count(), 2U);
}

TEST_F(Adding, AColumnAfterClearedColumnsGoesBehindTheOldCells) {
    addColumns({50, 50});
    addRows(1, u"a,b");
    inside.clearColumns();
    addColumns({50});
    EXPECT_EQ(list.ColumnsCount(), 1);
    EXPECT_EQ(inside.rows()[0].items.count(), 3U);
    EXPECT_EQ(list.ItemText(1, 1), u"a");
    EXPECT_EQ(list.ItemText(1, 3), u"");
}

TEST_F(Adding, AColumnGivesEveryRowOneEmptyCell) {
    addColumns({50});
    addRows(3, u"a");
    list.letDefaultItemForeColor(0x112233);
    addColumns({50});
    for (Long row = 1; row <= 3; ++row) {
        EXPECT_EQ(list.ItemText(row, 2), u"");
        EXPECT_EQ(list.ItemForeColor(row, 2), 0x112233U) << "the default that holds at that moment";
        EXPECT_EQ(list.ItemForeColor(row, 1), 0U);
    }
}

TEST_F(Adding, AColumnLiesBesideItsLeftNeighbour) {
    list.ColumnsAdd(u"first");
    list.ColumnsAdd(u"second");
    EXPECT_EQ(list.ColumnLeft(1), 0);
    EXPECT_EQ(list.ColumnLeft(2), 1000);
    EXPECT_EQ(list.ColumnWidth(2), 1000);
}

TEST_F(Adding, AColumnStartsWithItsArgumentsAndTheControlsIconSize) {
    list.letIconW(20);
    list.letIconH(21);
    list.ColumnsAdd(u"Text", nullptr, nullptr, nullptr, cColumnRight, 700, true, 1, u"key", u"tag", 2, 3);
    list.letIconW(5);
    const ColumnHeader& column = *inside.columns()[0];
    EXPECT_EQ(column.Text, u"Text");
    EXPECT_EQ(column.Alignment, cColumnRight);
    EXPECT_EQ(column.IconAlignment, cColumnLeft);
    EXPECT_EQ(column.Width, 700);
    EXPECT_TRUE(column.AllowSorting);
    EXPECT_EQ(column.ForeColor, 1U);
    EXPECT_EQ(column.ForeColorHover, 2U);
    EXPECT_EQ(column.ForeColorDown, 3U);
    EXPECT_EQ(column.Key, u"key");
    EXPECT_EQ(column.Tag, u"tag");
    EXPECT_FALSE(column.CheckBoxes);
    EXPECT_TRUE(column.AdjustItemIcons);
    EXPECT_EQ(column.ItemIconW, 20) << "a copy taken at creation";
    EXPECT_EQ(column.ItemIconH, 21);
    EXPECT_EQ(column.ItemsChecked, 0);
}

TEST_F(Adding, ANumberAsColumnTextIsConverted) {
    list.ColumnsAdd(Variant(12.5));
    EXPECT_EQ(list.ColumnText(1), u"12.5");
}

TEST_F(Adding, AnUnconvertibleColumnTextIsReportedAndTheColumnStays) {
    list.ColumnsAdd(Variant(Null{}));
    EXPECT_EQ(lastReport(), "94 ColumnsAdd");
    EXPECT_EQ(list.ColumnsCount(), 1);
    EXPECT_EQ(list.ColumnText(1), u"");
    EXPECT_EQ(list.ColumnWidth(1), 1000);
}

TEST_F(Adding, ARowTakesTheDefaultTextPositionAndIsEnabled) {
    addColumns({50});
    list.letTextPositionDefault(cTextPosBottom);
    addRows(1);
    list.letTextPositionDefault(cTextPosTop);
    EXPECT_EQ(list.TextPosition(1), cTextPosBottom);
    EXPECT_TRUE(list.RowEnabled(1));
    EXPECT_FALSE(list.RowSelected(1));
    EXPECT_FALSE(list.RowChecked(1));
}

// Wanted: insertion moves records but no index.
TEST_F(Adding, InsertionMovesRecordsButNoIndex) {
    addColumns({50});
    for (const char16_t* text : {u"a", u"b", u"c"})
        addRows(1, text);
    list.letListIndex(2);
    list.letRowSelected(3, true);
    list.RowsAdd(Long{1}, u",", u"new");
    EXPECT_EQ(list.ItemText(2, 1), u"new");
    EXPECT_EQ(list.ItemText(4, 1), u"c");
    EXPECT_EQ(list.ListIndex(), 2) << "now names another row";
    EXPECT_TRUE(list.RowSelected(4)) << "travels with its record";
    EXPECT_FALSE(list.RowSelected(3));
    EXPECT_EQ(list.NewIndex(), 1);
}

TEST_F(Adding, TheSharedCounterWalksTheCells) {
    addColumns({50, 50, 50});
    list.letAutoRedraw(false);
    list.letAutoCheckScroll(false); // which counts in the same one
    addRows(1);
    EXPECT_EQ(inside.counters().scanIndex, 4) << "one past the last column";
}

TEST_F(Adding, EachAddRefreshesOnceWithBarsCheckedBefore) {
    EXPECT_EQ(paintsOf([&] { list.ColumnsAdd(u"a", nullptr, nullptr, nullptr, cColumnLeft, 6000); }), 1);
    EXPECT_EQ(inside.horizontal().Tag, u"True");
    EXPECT_EQ(paintsOf([&] { list.RowsAdd(); }), 1);
    list.letAutoCheckScroll(false);
    list.letAutoRedraw(false);
    EXPECT_EQ(paintsOf([&] { list.RowsAdd(); }), 0);
    EXPECT_EQ(inside.vertical().Tag, u"False") << "not checked for the second row";
}

TEST_F(Adding, ARowIsPaintedAfterTheBarsWereChecked) {
    addColumns({50});
    list.RowsAdd();
    String tagAtThePaint;
    desktop.onYield([&] { tagAtThePaint = inside.vertical().Tag; });
    list.RowsAdd();
    EXPECT_EQ(tagAtThePaint, u"True");
}

TEST_F(Adding, ATextOfTenMillionUnitsAndOddUnitsComesBack) {
    addColumns({50});
    const String longText(10'000'000, u'x');
    const String odd = {u'a', u'\0', 0xD800, u'b', 0xDC00};
    list.RowsAdd(Long{-1}, u",", longText);
    list.RowsAdd(Long{-1}, u",", odd);
    EXPECT_TRUE(list.ItemText(1, 1) == longText);
    EXPECT_EQ(list.ItemText(2, 1), odd);
    EXPECT_EQ(reportCount(), 0U);
}

} // namespace lumtex::testing
