#include "played_list.h"

namespace lumtex::testing {

class MouseMove : public PlayedList {};

TEST_F(MouseMove, IsRememberedAndToldAndStartsTheHoverTimer) {
    fill(2);
    EXPECT_FALSE(inside.mouseInTimer().Enabled());
    move({33, 44});
    EXPECT_EQ(events.log, Lines{"MouseMove Button=0 Shift=0 X=33 Y=44"});
    EXPECT_TRUE(says(inside.mouse(), "x=33 y=44 button=0"));
    EXPECT_TRUE(inside.mouseInTimer().Enabled());
}

TEST_F(MouseMove, YieldsAtBothEndsAndWithoutRowsAtTheStartAlone) {
    const At low{30, 150};
    EXPECT_EQ(yieldsOf([&] { list.UserControl_MouseMove(0, 0, low.x, low.y); }), 1);
    fill(2);
    EXPECT_EQ(yieldsOf([&] { list.UserControl_MouseMove(0, 0, low.x, low.y); }), 2);
}

TEST_F(MouseMove, IsToldBeforeTheHeadersFollow) {
    fill(2);
    hover({30, 150});
    std::string headerWhenTold;
    events.on("MouseMove", [&] { headerWhenTold = inside.header(); });
    move({30, 10});
    EXPECT_TRUE(says(headerWhenTold, "hover=none"));
    EXPECT_TRUE(says(inside.header(), "hover=1"));
}

TEST_F(MouseMove, YieldsBeforeItRemembersThePlace) {
    fill(2);
    move({10, 150});
    std::string seen;
    desktop.onYield([&] { seen = inside.mouse(); });
    list.UserControl_MouseMove(0, 0, 20, 150);
    EXPECT_TRUE(says(seen, "x=10"));
}

TEST_F(MouseMove, WithoutAButtonEndsWhatAPressBegan) {
    fill(2);
    inside.beginPress();
    inside.letPressedColumn(0);
    inside.beginResize(0);
    list.UserControl_MouseMove(rightButton, 0, 30, 150);
    EXPECT_TRUE(says(inside.header(), "pending=yes resizing=yes"));
    list.UserControl_MouseMove(0, 0, 30, 150);
    EXPECT_TRUE(says(inside.header(), "pending=no resizing=no pressed=none divider=none"));
}

// Wanted: a move on the exact line paints twice.
TEST_F(MouseMove, PaintsOverTheHeadersAndOnceMoreWhenTheHoverLeaves) {
    struct Row {
        const char* name;
        Single beyond; ///< pixels under the header's foot
        Long hover;
        int paints;
    };
    fill(2);
    for (const Row& row : {Row{"over the headers", -3, -1, 1},
                           Row{"over the headers, from a header", -3, 0, 1},
                           Row{"on the line", 0, -1, 2},
                           Row{"under it, nothing hovered", 1, -1, 0},
                           Row{"under it, the hover leaves", 1, 0, 1}}) {
        hover(cell(2, 1));
        inside.letHoverColumn(row.hover);
        const Single y = headerHeight() + row.beyond;
        EXPECT_EQ(paintsOf([&] { list.UserControl_MouseMove(0, 0, 30, y); }), row.paints) << row.name;
        EXPECT_TRUE(says(inside.header(), "hover=" + fromOne(row.beyond > 0 ? -1 : 0))) << row.name;
    }
}

TEST_F(MouseMove, WithHiddenHeadersPaintsNothing) {
    fill(2);
    list.letHideColumnHeaders(true);
    hover(cell(2, 1));
    inside.letHoverColumn(0);
    window().letMousePointer(CursorShape::custom);
    EXPECT_EQ(paintsOf([&] { list.UserControl_MouseMove(0, 0, 30, 0); }), 0);
    EXPECT_EQ(window().MousePointer(), CursorShape::custom);
}

TEST_F(MouseMove, UnderTheHeadersTakesTheResizeCursorAway) {
    fill(2);
    hover(divider(1));
    move(divider(1));
    EXPECT_EQ(window().MousePointer(), CursorShape::custom);
    move(cell(1, 1));
    EXPECT_EQ(window().MousePointer(), CursorShape::standard);
}

TEST_F(MouseMove, CarriesTheGuideLineAlong) {
    fill(2);
    press(divider(1));
    move({80, 5});
    ASSERT_TRUE(says(inside.header(), "resizing=yes"));
    move({95, 50});
    EXPECT_TRUE(inside.guide().Visible());
    EXPECT_EQ(inside.guide().from(), (Point{95, 0}));
    EXPECT_EQ(inside.guide().to(), (Point{95, 200}));
    list.window().place(100, 100, 300, 260);
    move({96, 50});
    EXPECT_EQ(inside.guide().to().y, 260) << "as tall as the list is now";
}

TEST_F(MouseMove, GoesOnWithThePlaceThatTheHostMadeOfIt) {
    fill(3);
    hover(cell(1, 1));
    events.otherY = rowTop(3) + 5;
    list.UserControl_MouseMove(leftButton, 0, 30, rowTop(2) + 5);
    EXPECT_EQ(selection(), "index=3 selected=3");
    EXPECT_TRUE(says(inside.mouse(), "y=" + numberText(rowTop(2) + 5)));
}

// Wanted: a press on a row's top edge hits nothing, a move there hits the row.
TEST_F(MouseMove, OnARowsTopEdgeHitsTheRowAndNotTheOneAbove) {
    fill(3);
    hover(cell(1, 1));
    list.UserControl_MouseMove(leftButton, 0, 30, rowTop(2));
    EXPECT_EQ(selection(), "index=2 selected=2");
    list.UserControl_MouseMove(leftButton, 0, 30, rowTop(2) - 1);
    EXPECT_EQ(selection(), "index=1 selected=1");
    list.UserControl_MouseMove(leftButton, 0, 30, rowTop(4));
    EXPECT_EQ(selection(), "index=1 selected=1") << "below the last row";
}

// Wanted: nothing stores a number in the two fields, so the event is never raised.
TEST_F(MouseMove, NeverRaisesItemOver) {
    fill(3);
    list.letCheckMouseOver(true);
    for (const At at : {cell(1, 1), cell(2, 2), At{200, 100}, header(1), At{30, 190}, cell(3, 1)}) {
        hover(at);
        move(at);
    }
    EXPECT_EQ(takenNames(), Lines{});
    EXPECT_TRUE(says(inside.mouse(), "row=0 column=0"));
    EXPECT_FALSE(inside.hasTips());
}

TEST_F(MouseMove, WouldRaiseItemOverWithZerosForAnItemThatWasStored) {
    fill(3);
    list.letCheckMouseOver(true);
    inside.letHoverRow(2);
    move(cell(3, 1));
    desktop.advance(std::chrono::milliseconds(1));
    events.log.clear();
    inside.letHoverRow(2);
    move(cell(2, 1));
    EXPECT_EQ(takenNames(), Lines{}) << "over an item";
    move({200, 100});
    EXPECT_EQ(taken(), Lines{"ItemOver Row=0 Column=0 bOverItem=False"});
    EXPECT_TRUE(says(inside.mouse(), "row=0"));
    EXPECT_TRUE(inside.hasTips());
    EXPECT_EQ(reportCount(), 0U);
}

} // namespace lumtex::testing
