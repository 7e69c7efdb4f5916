#include "played_list.h"

namespace lumtex::testing {

class ItemMoving : public PlayedList {
  protected:
    ItemMoving() { inside.letAllowItemMoving(true); }

    Long index() { return inside.properties().ListIndex; }
};

TEST_F(ItemMoving, ADragMarksTheRowUnderTheMouseAndLeavesTheIndex) {
    fill(6);
    press(cell(2, 1));
    EXPECT_EQ(paintsOf([&] { move(cell(5, 1)); }), 1);
    EXPECT_TRUE(says(inside.drag(), "target=5"));
    EXPECT_EQ(selection(), "index=2 selected=2");
    EXPECT_EQ(pixel(5, static_cast<Long>(rowTop(5))), 0U) << "the mark, black";
    EXPECT_EQ(paintsOf([&] { move({31, cell(5, 1).y}); }), 0) << "the same row again";
}

// Wanted: the current row counted from 1 against the row under the mouse counted from 0, so the row
// behind the current one is no target.
TEST_F(ItemMoving, TheRowBehindTheCurrentOneIsNoTarget) {
    fill(6);
    press(cell(2, 1));
    EXPECT_EQ(paintsOf([&] { move(cell(3, 1)); }), 0);
    EXPECT_TRUE(says(inside.drag(), "target=none"));
}

// Wanted: the first row is no target, and a drag that finds no row leaves the target as it is.
TEST_F(ItemMoving, TheFirstRowIsNoTargetAndNoRowLeavesTheTarget) {
    fill(6);
    press(cell(3, 1));
    move(cell(6, 1));
    ASSERT_TRUE(says(inside.drag(), "target=6"));
    EXPECT_EQ(paintsOf([&] { move(cell(1, 1)); }), 1);
    EXPECT_TRUE(says(inside.drag(), "target=6"));
    move({250, 100});
    EXPECT_TRUE(says(inside.drag(), "target=6"));
}

// Wanted: nothing asks whether a drag took place, and the row behind the current one is meant: each click
// moves cells.
TEST_F(ItemMoving, APlainClickSwapsTheNextRowWithTheFirstAndLosesTheIndex) {
    fill(5);
    click(cell(2, 1));
    EXPECT_EQ(columnTexts(1), "3a 2a 1a 4a 5a");
    EXPECT_EQ(columnTexts(2), "3b 2b 1b 4b 5b");
    EXPECT_EQ(index(), -1);
    EXPECT_TRUE(says(inside.drag(), "target=none"));
}

TEST_F(ItemMoving, AClickOnTheLastRowIsABoundsFailureAndStillLosesTheIndex) {
    fill(3);
    press(cell(3, 1));
    const std::size_t before = reportCount();
    desktop.release();
    ASSERT_EQ(reportCount(), before + 1);
    EXPECT_EQ(lastReport(), "9 MoveItemUp");
    EXPECT_EQ(columnTexts(1), "1a 2a 3a");
    EXPECT_EQ(index(), -1);
}

TEST_F(ItemMoving, WithoutACurrentRowMovesNothing) {
    fill(3);
    hover({250, 100});
    desktop.press();
    desktop.release();
    EXPECT_EQ(columnTexts(1), "1a 2a 3a");
    EXPECT_EQ(index(), -1);
}

TEST_F(ItemMoving, NotAllowedLeavesTheRowsAlone) {
    inside.letAllowItemMoving(false);
    fill(5);
    inside.letDropTarget(4);
    click(cell(2, 1));
    EXPECT_EQ(columnTexts(1), "1a 2a 3a 4a 5a");
    EXPECT_TRUE(says(inside.drag(), "target=5"));
    EXPECT_EQ(index(), 1);
}

TEST_F(ItemMoving, ADropFurtherDownSwapsCellsWithTheRowBeforeTheTarget) {
    fill(6);
    press(cell(2, 1));
    move(cell(6, 1));
    ASSERT_TRUE(says(inside.drag(), "target=6"));
    desktop.release();
    // Row 3, the one behind the current one, and 5 - 2 - 1 rows further down.
    EXPECT_EQ(columnTexts(1), "1a 2a 5a 4a 3a 6a");
    EXPECT_EQ(index(), 3);
}

TEST_F(ItemMoving, ADropFurtherUpSwapsTheRowBehindTheCurrentOneWithTheTarget) {
    fill(6);
    press(cell(4, 1));
    move(cell(2, 1));
    ASSERT_TRUE(says(inside.drag(), "target=2"));
    desktop.release();
    EXPECT_EQ(columnTexts(1), "1a 5a 3a 4a 2a 6a");
    EXPECT_EQ(index(), 0);
}

TEST_F(ItemMoving, ADropFarBelowTheLastRowTakesTheLastRow) {
    fill(5);
    press(cell(2, 1));
    inside.letDropTarget(100);
    desktop.release();
    EXPECT_EQ(columnTexts(1), "1a 2a 5a 4a 3a");
    EXPECT_EQ(index(), 3);
}

TEST_F(ItemMoving, ADropWithoutColumnsPaints) {
    fill(3);
    list.ColumnsClear();
    inside.letDropTarget(2);
    EXPECT_EQ(paintsOf([&] { list.UserControl_MouseUp(leftButton, 0, 30, 50); }), 1);
    EXPECT_TRUE(says(inside.drag(), "target=none"));
}

class MoveItem : public PlayedList {
  protected:
    /// Everything of row 1 that does not travel differs from that of the others.
    void markFirstRow() {
        list.letTextPosition(1, cTextPosition{2});
        inside.rows()[0].Selected = true;
        inside.rows()[0].Enabled = false;
        inside.rows()[0].Checked = true;
    }
    void expectFirstRowMarked() {
        EXPECT_EQ(list.TextPosition(1), cTextPosition{2});
        EXPECT_TRUE(inside.rows()[0].Selected);
        EXPECT_FALSE(inside.rows()[0].Enabled);
        EXPECT_TRUE(inside.rows()[0].Checked);
    }
};

struct MoveRow {
    const char* name;
    bool up;
    Long row; ///< 0-based
    Long count;
    const char* after;
    Long indexAfter; ///< from 2
};

// clang-format off
constexpr MoveRow moveRows[] = {
    {"up by one",                 true,  2, 1,  "1a 3a 2a 4a 5a", 1},
    {"up by three",               true,  4, 3,  "1a 5a 3a 4a 2a", -1},
    {"up past the first",         true,  3, 9,  "4a 2a 3a 1a 5a", -1},
    {"up by none",                true,  3, 0,  "1a 2a 3a 4a 5a", 2},
    {"up from the first",         true,  0, 4,  "1a 2a 3a 4a 5a", 2},
    {"down by one",               false, 1, 1,  "1a 3a 2a 4a 5a", 3},
    {"down by three",             false, 0, 3,  "4a 2a 3a 1a 5a", 5},
    {"down past the last",        false, 2, 9,  "1a 2a 5a 4a 3a", 4},
    {"down by none",              false, 2, 0,  "1a 2a 3a 4a 5a", 2},
    {"down from the last",        false, 4, 4,  "1a 2a 3a 4a 5a", 2},
};
// clang-format on

// Wanted: stored without a check, and whether or not anything moved.
TEST_F(MoveItem, SwapsTwoRowsAndStoresTheIndexUnchecked) {
    for (const MoveRow& row : moveRows) {
        fill(5);
        list.letListIndex(2);
        if (row.up)
            inside.MoveItemUp(row.row, row.count);
        else
            inside.MoveItemDown(row.row, row.count);
        EXPECT_EQ(columnTexts(1), row.after) << row.name;
        EXPECT_EQ(inside.properties().ListIndex, row.indexAfter) << row.name;
        list.RowsClear();
        list.ColumnsClear();
        list.letListIndex(-1);
    }
}

// Wanted: the two rows swap their cells and nothing else; the rows between stay.
TEST_F(MoveItem, MovesTheCellsWithAllTheyHoldAndNothingElseOfTheRow) {
    for (const bool up : {true, false}) {
        fill(3);
        list.letItemToolTip(1, 2, u"tip");
        list.letItemFontBold(1, 2, true);
        list.letItemChecked(1, 1, true);
        list.letItemTag(3, 1, u"tag");
        markFirstRow();
        if (up)
            inside.MoveItemUp(2, 2);
        else
            inside.MoveItemDown(0, 2);
        EXPECT_EQ(columnTexts(1), "3a 2a 1a");
        EXPECT_EQ(list.ItemToolTip(3, 2), u"tip");
        EXPECT_EQ(list.ItemToolTip(1, 2), u"");
        EXPECT_TRUE(list.ItemFontBold(3, 2));
        EXPECT_FALSE(list.ItemFontBold(1, 2));
        EXPECT_TRUE(list.ItemChecked(3, 1));
        EXPECT_FALSE(list.ItemChecked(1, 1));
        EXPECT_EQ(list.ItemsCheckedCount(1), 1);
        EXPECT_EQ(list.ItemTag(1, 1).toText(), u"tag");
        EXPECT_TRUE(list.ItemTag(3, 1).isEmpty());
        expectFirstRowMarked();
        list.RowsClear();
        list.ColumnsClear();
    }
}

TEST_F(MoveItem, UpTakesTheWholeCollectionAndDownOnlyTheColumnsThereAre) {
    fill(3);
    list.ColumnsClear();
    addColumns({60});
    inside.MoveItemDown(0, 2);
    EXPECT_EQ(columnTexts(1), "3a 2a 1a");
    EXPECT_EQ(inside.rows()[0].items.count(), 3U);
    EXPECT_EQ(inside.rows()[0].items[1].Text(), u"1b") << "a cell without a column stays";
    inside.MoveItemUp(2, 2);
    EXPECT_EQ(columnTexts(1), "1a 2a 3a");
    EXPECT_EQ(inside.rows()[2].items[1].Text(), u"1b");
}

TEST_F(MoveItem, PaintsWhereAutoRedrawSaysSo) {
    fill(3);
    EXPECT_EQ(paintsOf([&] { inside.MoveItemUp(2, 1); }), 1);
    EXPECT_EQ(paintsOf([&] { inside.MoveItemDown(1, 1); }), 1);
    list.letAutoRedraw(false);
    EXPECT_EQ(paintsOf([&] {
                  inside.MoveItemUp(2, 1);
                  inside.MoveItemDown(1, 1);
              }),
              0);
}

TEST_F(MoveItem, WithoutRowsOrColumnsDoesNothing) {
    inside.properties().ListIndex = 3;
    inside.MoveItemUp(3, 1);
    inside.MoveItemDown(3, 1);
    addColumns({60});
    inside.MoveItemUp(3, 1);
    inside.MoveItemDown(3, 1);
    EXPECT_EQ(inside.properties().ListIndex, 3);
    EXPECT_EQ(reportCount(), 0U);
}

} // namespace lumtex::testing
