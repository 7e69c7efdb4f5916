#include "played_list.h"

namespace lumtex::testing {

class Release : public PlayedList {
  protected:
    /// The widths of all columns in pixels.
    std::string widths() {
        std::string text;
        for (Long c = 1; c <= list.ColumnsCount(); ++c)
            text += (c == 1 ? "" : " ") + std::to_string(static_cast<int>(columnWidth(c)));
        return text;
    }
    std::string lefts() {
        std::string text;
        for (Long c = 1; c <= list.ColumnsCount(); ++c)
            text += (c == 1 ? "" : " ") + std::to_string(static_cast<int>(list.ColumnLeft(c) / 15));
        return text;
    }
    void dragDivider(Long column, Single toX) {
        press(divider(column));
        move({toX, 5});
        desktop.release();
    }
};

TEST_F(Release, OnTheSameCellIsUpUpClickAndThePlatformsClick) {
    fill(3);
    click(cell(2, 2));
    const std::string at = " Button=1 Shift=0 X=90 Y=" + std::to_string(static_cast<int>(cell(2, 2).y));
    EXPECT_EQ(taken(),
              (Lines{"ItemDown Row=2 Column=2",
                     "MouseDown" + at,
                     "MouseUp" + at,
                     "ItemUp Row=2 Column=2",
                     "ItemClick Row=2 Column=2",
                     "Click"}));
    EXPECT_EQ(list.ColumnIndex(), 2);
}

TEST_F(Release, PlaceAndButtonOfItAreRemembered) {
    fill(3);
    press(cell(2, 2));
    list.UserControl_MouseUp(rightButton, 0, 10, 50);
    EXPECT_TRUE(says(inside.mouse(), "x=10 y=50"));
    EXPECT_TRUE(says(inside.mouse(), "button=" + numberText(rightButton)));
}

TEST_F(Release, OnAnotherCellIsItemUpAloneAndStoresThatCell) {
    fill(3);
    press(cell(1, 1));
    move(cell(3, 2));
    taken();
    desktop.release();
    EXPECT_EQ(takenNames(), (Lines{"MouseUp", "ItemUp", "Click"}));
    EXPECT_TRUE(says(inside.edit(), "row=3 column=2"));
}

TEST_F(Release, OutsideEveryRowRaisesMouseUpAlone) {
    fill(3);
    for (const At nowhere : {At{30, 190}, At{30, rowTop(2)}}) {
        press(cell(1, 1));
        move(nowhere);
        taken();
        desktop.release();
        EXPECT_EQ(takenNames(), (Lines{"MouseUp", "Click"})) << nowhere.y;
    }
}

TEST_F(Release, OnAHeaderAfterAPressOnACellClicksTheHeader) {
    fill(3);
    press(cell(1, 1));
    move(header(2));
    taken();
    desktop.release();
    EXPECT_EQ(taken().front(), "ColumnClick Column=2") << "the paint over it took the press that was pending";
}

TEST_F(Release, OnADisabledCellCountsAsAnyCell) {
    fill(3);
    list.letItemEnabled(2, 1, false);
    click(cell(1, 1));
    taken();
    hover(cell(2, 1));
    list.UserControl_MouseUp(leftButton, 0, cell(2, 1).x, cell(2, 1).y);
    EXPECT_EQ(takenNames(), (Lines{"MouseUp", "ItemUp"}));
    EXPECT_TRUE(says(inside.edit(), "row=2"));
}

TEST_F(Release, BeforeAnyPressOnAnItemRaisesMouseUpAlone) {
    fill(3);
    hover(cell(2, 1));
    list.UserControl_MouseUp(leftButton, 0, cell(2, 1).x, cell(2, 1).y);
    EXPECT_EQ(takenNames(), Lines{"MouseUp"});
}

TEST_F(Release, WithoutColumnsOrRowsRaisesMouseUpAlone) {
    inside.letPressedColumn(3);
    list.UserControl_MouseUp(leftButton, 0, 30, 50);
    EXPECT_EQ(takenNames(), Lines{"MouseUp"});
    EXPECT_TRUE(says(inside.header(), "pressed=4")) << "nothing was cleaned up";
    addColumns({60});
    EXPECT_EQ(paintsOf([&] { list.UserControl_MouseUp(leftButton, 0, 30, 50); }), 1);
    EXPECT_EQ(takenNames(), Lines{"MouseUp"});
    EXPECT_TRUE(says(inside.header(), "pressed=none"));
}

TEST_F(Release, HasForgottenThePressBeforeTheHostsTurn) {
    fill(2);
    hover(header(1));
    inside.beginPress();
    bool pending = true;
    desktop.onYield([&] { pending = bool(says(inside.header(), "pending=yes")); });
    list.UserControl_MouseUp(leftButton, 0, 30, 5);
    EXPECT_FALSE(pending);
}

TEST_F(Release, ReturnsTheHeadersToIdle) {
    fill(2);
    press(divider(1));
    move({80, 5});
    ASSERT_TRUE(inside.guide().Visible());
    inside.beginPress();
    desktop.release();
    EXPECT_FALSE(inside.guide().Visible());
    EXPECT_TRUE(says(inside.header(), "resizing=no pending=no pressed=none"));
}

TEST_F(Release, EndsAResizeAndChecksTheBars) {
    fill(2, {60, 200});
    EXPECT_FALSE(inside.horizontal().Visible());
    dragDivider(1, 110);
    EXPECT_EQ(widths(), "110 200");
    EXPECT_EQ(lefts(), "0 110");
    EXPECT_TRUE(inside.horizontal().Visible());
}

TEST_F(Release, OfADividerLeftOfItsColumnLeavesOneAndAHalfIconWidths) {
    fill(2);
    dragDivider(2, 10);
    EXPECT_EQ(widths(), "60 24");
    list.letIconW(40);
    dragDivider(1, 20);
    EXPECT_EQ(widths(), "60 24") << "60 is one and a half of 40";
}

// Wanted: what is taken off is always the old width of the resized column, so only its first
// neighbour moves by the true amount.
TEST_F(Release, OfADividerMovesOnlyTheFirstNeighbourByTheTrueAmount) {
    fill(2, {50, 60, 70, 40});
    EXPECT_EQ(lefts(), "0 50 110 180");
    dragDivider(1, 80);
    EXPECT_EQ(widths(), "80 60 70 40");
    // 50 + 80 - 50, then 110 + 60 - 50, then 180 + 70 - 50.
    EXPECT_EQ(lefts(), "0 80 120 200");
}

TEST_F(Release, OfADividerCountsTheScrolledPixels) {
    fill(2, {100, 300});
    inside.horizontal().letValue(40);
    list.Redraw();
    press({columnLeft(1) + 98, 5});
    move({90, 5});
    desktop.release();
    EXPECT_EQ(widths(), "130 300");
}

TEST_F(Release, OfAResizeWhoseColumnsTheHostClearedDoesNothing) {
    fill(2);
    press(divider(2));
    move(divider(2));
    ASSERT_TRUE(says(inside.header(), "resizing=yes"));
    list.ColumnsClear();
    list.ColumnsAdd(u"only", nullptr, nullptr, nullptr, cColumnLeft, 900);
    desktop.release();
    EXPECT_EQ(widths(), "60");
    EXPECT_EQ(lastReport(), "9 UserControl_MouseUp");
}

class HeaderPress : public PlayedList {};

TEST_F(HeaderPress, OnTheRightMarginStartsAResizeAtTheNextPaintAndIsNoClick) {
    fill(2);
    press(divider(1));
    EXPECT_TRUE(says(inside.header(), "pressed=none resizing=no"));
    move(divider(1));
    EXPECT_TRUE(says(inside.header(), "resizing=yes"));
    EXPECT_TRUE(inside.guide().Visible());
    EXPECT_EQ(window().MousePointer(), CursorShape::custom);
    desktop.release();
    EXPECT_EQ(takenNames(), (Lines{"MouseDown", "MouseUp", "Click"}));
}

TEST_F(HeaderPress, OnTheRightMarginOfFixedColumnsIsAClickAfterAPaint) {
    fill(2);
    list.letFixColumns(true);
    press(divider(1));
    move(divider(1));
    EXPECT_TRUE(says(inside.header(), "resizing=no"));
    EXPECT_FALSE(inside.guide().Visible());
    EXPECT_TRUE(says(inside.header(), "divider=1")) << "kept all the same";
    EXPECT_TRUE(says(inside.header(), "pressed=1"));
    EXPECT_EQ(window().MousePointer(), CursorShape::standard);
    desktop.release();
    EXPECT_EQ(takenNames(), (Lines{"MouseDown", "ColumnClick", "MouseUp", "Click"}));
}

TEST_F(HeaderPress, OnAMarginWithoutAPaintBeforeTheReleaseIsNoClick) {
    fill(2);
    hover({2, 5});
    desktop.press();
    desktop.release();
    EXPECT_EQ(takenNames(), (Lines{"MouseDown", "MouseUp", "Click"}));
}

TEST_F(HeaderPress, OnTheLeftMarginIsAClickAfterAPaint) {
    fill(2);
    press({62, 5});
    EXPECT_TRUE(says(inside.header(), "pressed=none"));
    move({63, 5});
    EXPECT_TRUE(says(inside.header(), "pressed=2"));
    desktop.release();
    EXPECT_EQ(taken()[1], "ColumnClick Column=2");
}

TEST_F(HeaderPress, IsAClickOnlyWithTheMouseOverThatHeader) {
    fill(2);
    press(header(1));
    move({header(1).x + 1, 5});
    move(header(2));
    desktop.release();
    EXPECT_EQ(takenNames(), (Lines{"MouseDown", "MouseUp", "Click"}));
    press(header(1));
    move({header(1).x + 1, 5});
    move(header(2));
    move(header(1));
    desktop.release();
    EXPECT_EQ(takenNames(), (Lines{"MouseDown", "ColumnClick", "MouseUp", "Click"}));
}

TEST_F(HeaderPress, BelongsToTheHeaderOfTheFirstPaintAfterIt) {
    fill(2);
    press(header(1));
    EXPECT_TRUE(says(inside.header(), "pressed=1"));
    move(header(2));
    EXPECT_TRUE(says(inside.header(), "pressed=2"));
    desktop.release();
    EXPECT_EQ(taken()[1], "ColumnClick Column=2");
}

TEST_F(HeaderPress, OfTheRightButtonIsAClickWhereTheMarginTestTookIt) {
    fill(2);
    press(header(2), rightButton);
    EXPECT_TRUE(says(inside.header(), "pressed=2"));
    desktop.release(rightButton);
    EXPECT_EQ(takenNames(), (Lines{"MouseDown", "ColumnClick", "MouseUp", "Click"}));
    press({62, 5}, rightButton);
    move({63, 5});
    EXPECT_TRUE(says(inside.header(), "pressed=none")) << "a paint asks for the left button";
    desktop.release(rightButton);
    EXPECT_EQ(takenNames(), (Lines{"MouseDown", "MouseUp", "Click"}));
}

TEST_F(HeaderPress, OnAColumnThatForbidsSortingIsAClickAndNoSort) {
    fill(3);
    click(header(1));
    EXPECT_EQ(takenNames(), (Lines{"MouseDown", "ColumnClick", "MouseUp", "Click"}));
    EXPECT_TRUE(says(inside.sort(), "column=none up=1"));
    EXPECT_EQ(columnTexts(1), "1a 2a 3a");
}

} // namespace lumtex::testing
