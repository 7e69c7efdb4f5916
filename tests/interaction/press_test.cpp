#include "played_list.h"

namespace lumtex::testing {

class Press : public PlayedList {};

// Wanted: a press on an empty list is not even remembered.
TEST_F(Press, OnAnEmptyListRaisesMouseDownAlone) {
    desktop.press(list.window(), 10, 20);
    EXPECT_EQ(taken(), Lines{"MouseDown Button=1 Shift=0 X=10 Y=20"});
    inside.letPointer(1, 2, 4);
    list.UserControl_MouseDown(leftButton, 0, 30, 40);
    EXPECT_TRUE(says(inside.mouse(), "x=1 y=2 button=4"));
    EXPECT_TRUE(says(inside.header(), "pending=no"));
}

TEST_F(Press, OnColumnsWithoutRowsPaintsOnceAndFindsTheColumn) {
    addColumns({60, 60});
    hover({70, 100});
    inside.letIndexSelect(false);
    EXPECT_EQ(paintsOf([&] { desktop.press(); }), 1);
    EXPECT_EQ(taken(), Lines{"MouseDown Button=1 Shift=0 X=70 Y=100"});
    EXPECT_EQ(list.ColumnIndex(), 2);
    EXPECT_TRUE(says(inside.selection(), "selects=yes"));
}

TEST_F(Press, OnTheHeaderChangesNoSelection) {
    fill(3);
    list.letListIndex(1);
    press(header(1));
    EXPECT_EQ(takenNames(), Lines{"MouseDown"});
    EXPECT_EQ(selection(), "index=2 selected=2");
    EXPECT_EQ(list.ColumnIndex(), 1);
    EXPECT_TRUE(says(inside.selection(), "selects=yes"));
}

TEST_F(Press, HoldsAHeaderDownOnlyMoreThanFivePixelsFromItsEdges) {
    struct Row {
        const char* name;
        Single x;
        Single y;
        Long pressed;
    };
    fill(1, {60, 60});
    const Single foot = headerHeight();
    const Row rows[] = {
        {"five from the left edge", 65, 5, -1},
        {"six from the left edge", 66, 5, 1},
        {"six from the right edge", 114, 5, 1},
        {"five from the right edge", 115, 5, -1},
        {"on the foot line", 90, foot, 1},
        {"under the foot line", 90, foot + 1, -1},
    };
    for (const Row& row : rows) {
        hover(cell(1, 1));
        inside.letPressedColumn(-1);
        list.UserControl_MouseDown(leftButton, 0, row.x, row.y);
        EXPECT_TRUE(says(inside.header(), "pressed=" + fromOne(row.pressed))) << row.name;
        EXPECT_TRUE(says(inside.header(), "current=2")) << row.name;
    }
}

TEST_F(Press, KnowsNoColumnBeforeTheFirstTickInside) {
    fill(2);
    desktop.press(list.window(), 30, rowTop(1) + 5);
    EXPECT_EQ(takenNames(), Lines{"MouseDown"});
    EXPECT_EQ(list.ColumnIndex(), -1);
    ASSERT_EQ(reportCount(), 1U);
    EXPECT_EQ(lastReport(), "9 ItemEnabled");
    EXPECT_EQ(selection(), "index=0 selected=");
}

TEST_F(Press, OnACellMakesItCurrentAndTellsCellThenMouse) {
    fill(3);
    press(cell(2, 2));
    EXPECT_EQ(taken(),
              (Lines{"ItemDown Row=2 Column=2",
                     "MouseDown Button=1 Shift=0 X=90 Y=" + std::to_string(static_cast<int>(cell(2, 2).y))}));
    EXPECT_EQ(selection(), "index=2 selected=2");
    EXPECT_TRUE(says(inside.edit(), "row=2 column=2"));
    EXPECT_TRUE(says(inside.selection(), "selects=yes"));
    EXPECT_TRUE(says(inside.header(), "pending=yes"));
}

TEST_F(Press, CountsForEveryButton) {
    fill(3);
    for (const MouseButton button : {leftButton, rightButton, middleButton}) {
        click(cell(2, 1), button);
        EXPECT_EQ(takenNames(), (Lines{"ItemDown", "MouseDown", "MouseUp", "ItemUp", "ItemClick", "Click"}));
        EXPECT_EQ(selection(), "index=2 selected=2");
        list.letListIndex(-1);
    }
}

TEST_F(Press, RightOfTheLastColumnChangesNoSelection) {
    fill(3);
    list.letListIndex(0);
    press({120, rowTop(2) + 5});
    EXPECT_EQ(takenNames(), Lines{"MouseDown"});
    EXPECT_EQ(selection(), "index=1 selected=1");
    EXPECT_EQ(list.ColumnIndex(), -1);
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(Press, BelowTheLastRowChangesNoSelection) {
    fill(2);
    list.letListIndex(0);
    press({30, rowTop(3) + 5});
    EXPECT_EQ(takenNames(), Lines{"MouseDown"});
    EXPECT_EQ(selection(), "index=1 selected=1");
    EXPECT_TRUE(says(inside.selection(), "selects=yes"));
}

// Wanted: a press on a row's top edge hits nothing, a move there hits the row.
TEST_F(Press, OnARowsTopEdgeHitsNothing) {
    fill(3);
    press({30, rowTop(2)});
    EXPECT_EQ(takenNames(), Lines{"MouseDown"});
    EXPECT_EQ(selection(), "index=0 selected=");
    desktop.release();
    press({30, rowTop(2) + 1});
    EXPECT_EQ(selection(), "index=2 selected=2");
    press({30, rowTop(2) - 1});
    EXPECT_EQ(selection(), "index=1 selected=1");
}

// Wanted: with hidden headers the rows are looked for from 0 on, while their colour starts at 1.
TEST_F(Press, WithHiddenHeadersLooksForRowsFromZero) {
    fill(3);
    list.letHideColumnHeaders(true);
    list.Redraw();
    struct Row {
        Single y;
        const char* after;
    };
    for (const Row& row : {Row{0, "index=0 selected="},
                           Row{1, "index=1 selected=1"},
                           Row{20, "index=0 selected="},
                           Row{21, "index=2 selected=2"}}) {
        list.letListIndex(-1);
        press({30, row.y});
        desktop.release();
        EXPECT_EQ(selection(), row.after) << row.y;
    }
    EXPECT_TRUE(says(inside.header(), "pressed=none"));
}

TEST_F(Press, FindsRowsFromTheTopRowOn) {
    fill(30);
    list.letTopIndex(10);
    press({30, headerHeight() + 25});
    EXPECT_EQ(taken().front(), "ItemDown Row=12 Column=1");
    EXPECT_EQ(list.TopIndex(), 10);
}

TEST_F(Press, OnADisabledCellNeitherSelectsNorRaisesItemDownAndClosesTheEditor) {
    fill(3);
    list.letListIndex(0);
    list.letItemEnabled(2, 1, false);
    press(cell(2, 1));
    EXPECT_EQ(takenNames(), Lines{"MouseDown"});
    EXPECT_EQ(selection(), "index=1 selected=1");
    EXPECT_TRUE(says(inside.selection(), "selects=yes"));
    list.SetEdit(1, 1);
    ASSERT_TRUE(says(inside.edit(), "active=yes"));
    list.UserControl_MouseDown(leftButton, 0, cell(2, 1).x, cell(2, 1).y);
    EXPECT_TRUE(says(inside.edit(), "active=no"));
}

TEST_F(Press, OnARowThatRefusesToBeCurrentStillSelectsTheOldCurrentRow) {
    fill(3);
    list.letListIndex(0);
    inside.rows()[1].Enabled = false;
    press(cell(2, 1));
    EXPECT_EQ(takenNames(), (Lines{"ErrorWrongIndex", "ItemDown", "MouseDown"}));
    EXPECT_EQ(selection(), "index=1 selected=1");
}

TEST_F(Press, NeverScrolls) {
    fill(30);
    const Long lastShown = inside.VisibleItems() + 1;
    press({30, rowTop(lastShown) + 2});
    EXPECT_EQ(selection(), "index=" + std::to_string(lastShown) + " selected=" + std::to_string(lastShown));
    EXPECT_EQ(list.TopIndex(), 0);
}

TEST_F(Press, PastTheRowsOfADynamicListIsReportedAndEnds) {
    fill(2);
    list.letAutoCheckScroll(false);
    list.letRowsDynamic(true);
    inside.vertical().letMax(3);
    list.Redraw();
    hover({30, 150});
    desktop.runtime().boxes.clear();
    desktop.press();
    EXPECT_EQ(takenNames(), Lines{"MouseDown"});
    // Rows 3 and 4: the test fails, and the sum.
    EXPECT_EQ(reportCount(), 4U);
    EXPECT_EQ(lastReport(), "9 UserControl_MouseDown");
}

TEST_F(Press, TwiceOnACellWithoutAllowEditRaisesItemDownTwice) {
    fill(2);
    list.letItemAllowEdit(1, 1, true);
    click(cell(1, 1));
    press(cell(1, 1));
    EXPECT_EQ(takenNames(), (Lines{"ItemDown", "MouseDown"}));
    EXPECT_FALSE(inside.editor().Visible());
}

TEST_F(Press, TwiceOnACellThatAllowsEditingOpensTheEditorInsteadOfItemDown) {
    fill(2);
    list.letAllowEdit(true);
    list.letItemAllowEdit(1, 1, true);
    click(cell(1, 1));
    EXPECT_FALSE(inside.editor().Visible());
    press(cell(1, 1));
    EXPECT_EQ(takenNames(), Lines{"MouseDown"});
    EXPECT_TRUE(inside.editor().Visible());
    EXPECT_EQ(inside.editor().Text(), u"1a");
    EXPECT_TRUE(says(inside.selection(), "selects=yes"));
}

TEST_F(Press, TwiceOnACellThatForbidsEditingRaisesNothing) {
    fill(2);
    list.letAllowEdit(true);
    click(cell(1, 1));
    press(cell(1, 1));
    EXPECT_EQ(takenNames(), Lines{"MouseDown"});
    EXPECT_FALSE(inside.editor().Visible());
    EXPECT_TRUE(says(inside.edit(), "row=1 column=1"));
}

TEST_F(Press, OnAnotherCellAndBackNeedsTwoPressesAgain) {
    fill(2);
    list.letAllowEdit(true);
    list.letItemAllowEdit(1, 1, true);
    click(cell(1, 1));
    click(cell(2, 1));
    press(cell(1, 1));
    EXPECT_FALSE(inside.editor().Visible());
    desktop.release();
    press(cell(1, 1));
    EXPECT_TRUE(inside.editor().Visible());
}

TEST_F(Press, AfterAReleaseOnAnotherCellCountsAsTheSecondThere) {
    fill(2);
    list.letAllowEdit(true);
    list.letItemAllowEdit(2, 1, true);
    press(cell(1, 1));
    move(cell(2, 1));
    desktop.release();
    press(cell(2, 1));
    EXPECT_TRUE(inside.editor().Visible());
}

TEST_F(Press, ElsewhereStoresAnOpenEdit) {
    fill(3);
    list.SetEdit(1, 2);
    inside.editor().letText(u"new");
    press(cell(3, 1));
    EXPECT_EQ(takenNames(), (Lines{"ItemChanged", "ItemDown", "MouseDown"}));
    EXPECT_EQ(text(1, 2), "new");
    EXPECT_FALSE(inside.editor().Visible());
}

TEST_F(Press, WithAnEditOpenThatAHostClearedTheRowsOfStopsAtThePaint) {
    fill(3);
    list.SetEdit(1, 2);
    events.on("ItemChanged", [&] { list.RowsClear(); });
    press(cell(3, 1));
    EXPECT_EQ(takenNames(), (Lines{"ItemChanged", "MouseDown"}));
    EXPECT_EQ(list.RowsCount(), 0);
    EXPECT_TRUE(says(inside.selection(), "selects=yes"));
}

} // namespace lumtex::testing
