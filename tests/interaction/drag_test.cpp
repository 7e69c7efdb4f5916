#include "played_list.h"

namespace lumtex::testing {

class Drag : public PlayedList {
  protected:
    std::string timer() {
        return (inside.mouseActionTimer().Enabled() ? "on " : "off ") + toUtf8(inside.mouseActionTimer().Tag);
    }
};

struct DragRow {
    const char* name;
    bool bar;       ///< with a horizontal bar
    Single fromTop; ///< Y, or
    Single fromFoot;
    const char* timer;
};

// clang-format off
constexpr DragRow dragRows[] = {
    {"above",                 false, -1, 0,  "on up"},
    {"on the upper edge",     false, 0,  0,  "off "},
    {"inside",                false, 60, 0,  "off "},
    {"on the lower edge",     false, 0,  200, "off "},
    {"under the lower edge",  false, 0,  201, "on down"},
    {"on the bar's edge",     true,  0,  183, "off "},
    {"over the bar",          true,  0,  184, "on down"},
};
// clang-format on

TEST_F(Drag, ScrollsAboveAndBelowTheRows) {
    for (const DragRow& row : dragRows) {
        fill(3, {60, row.bar ? 400 : 60});
        ASSERT_EQ(inside.horizontal().Visible(), row.bar) << row.name;
        ASSERT_EQ(inside.horizontal().Height(), 17) << row.name;
        hover(cell(1, 1));
        // Inside the rows it takes back what stood there.
        inside.mouseActionTimer().Tag = u"other";
        inside.mouseActionTimer().letEnabled(row.timer == std::string("off "));
        list.UserControl_MouseMove(leftButton, 0, 30, row.fromTop + row.fromFoot);
        EXPECT_EQ(timer(), row.timer) << row.name;
        list.RowsClear();
        list.ColumnsClear();
    }
}

TEST_F(Drag, TakesTheCurrentRowAndTheSelectionAlong) {
    fill(4);
    press(cell(1, 1));
    move(cell(3, 2));
    EXPECT_EQ(selection(), "index=3 selected=3");
    move(cell(2, 1));
    EXPECT_EQ(selection(), "index=2 selected=2");
}

TEST_F(Drag, SetsTheRowOnEveryMoveAndRaisesClickEachTime) {
    fill(4);
    list.letClickOnIndexChange(true);
    press(cell(2, 1));
    taken();
    move({30, rowTop(2) + 5});
    move({30, rowTop(2) + 6});
    EXPECT_EQ(taken(), (Lines{"Click", "Click"}));
}

// Wanted: a drag that finds no row, on the headers or during a resize, goes to the first one.
TEST_F(Drag, ThatFindsNoRowGoesToTheFirstOne) {
    fill(4);
    for (const At nowhere : {header(1), At{250, 80}, At{30, 190}}) {
        press(cell(3, 1));
        move(nowhere);
        EXPECT_EQ(selection(), "index=1 selected=1") << nowhere.x;
        desktop.release();
    }
}

TEST_F(Drag, OfADividerGoesToTheFirstRowToo) {
    fill(4);
    list.letListIndex(2);
    press(divider(1));
    move({80, 5});
    EXPECT_TRUE(says(inside.header(), "resizing=yes"));
    EXPECT_EQ(selection(), "index=1 selected=1");
}

// Wanted: a press on a row's top edge hits nothing, a move there hits the row.
TEST_F(Drag, HitsARowOnItsTopEdge) {
    fill(4);
    press(cell(1, 1));
    move({30, rowTop(3)});
    EXPECT_EQ(selection(), "index=3 selected=3");
}

TEST_F(Drag, WithAnotherButtonDoesNothing) {
    fill(4);
    for (const MouseButton button : {rightButton, middleButton}) {
        press(cell(2, 1), button);
        move(cell(4, 1));
        move({30, 300});
        EXPECT_EQ(selection(), "index=2 selected=2");
        EXPECT_FALSE(inside.mouseActionTimer().Enabled());
        desktop.release(button);
    }
}

TEST_F(Drag, OutsideScrollsOneRowATickAndComesBack) {
    fill(30);
    press(cell(2, 1));
    move({30, 230});
    EXPECT_EQ(timer(), "on down");
    const Long before = list.TopIndex();
    desktop.advance(std::chrono::milliseconds(1));
    EXPECT_EQ(list.TopIndex(), before + 1);
    desktop.advance(std::chrono::milliseconds(4));
    EXPECT_EQ(list.TopIndex(), before + 5);
    move({30, -5});
    EXPECT_EQ(timer(), "on up");
    desktop.advance(std::chrono::milliseconds(2));
    EXPECT_EQ(list.TopIndex(), before + 3);
    desktop.release();
    EXPECT_FALSE(inside.mouseActionTimer().Enabled());
    desktop.advance(std::chrono::milliseconds(5));
    EXPECT_EQ(list.TopIndex(), before + 3);
}

TEST_F(Drag, PastTheRowsOfADynamicListIsReported) {
    fill(2);
    list.letAutoCheckScroll(false);
    list.letRowsDynamic(true);
    inside.vertical().letMax(3);
    list.Redraw();
    press(cell(1, 1));
    move({30, 150});
    EXPECT_EQ(reportCount(), 2U) << "rows 3 and 4";
    EXPECT_EQ(lastReport(), "9 UserControl_MouseMove");
}

} // namespace lumtex::testing
