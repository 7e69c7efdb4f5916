/// Properties and places at the ends of their numbers: every walk comes to its end, and what does not fit is
/// reported.
#include "played_list.h"
#include "test_object.h"

namespace lumtex::testing {
namespace {

constexpr Long most = 0x7FFFFFFF;
constexpr Long least = -most - 1;

class FarNumbers : public PlayedList {
  protected:
    /// The bar where no user can bring it, but `WheelScrollLines` can.
    void letBar(Long value) { inside.vertical().letValue(value); }
    void key(Integer code) { desktop.key(code); }
};

TEST_F(FarNumbers, RowsThatFitAreCountedFromFarBelowZero) {
    fill(5);
    const Long band = inside.ColumnHeight() - static_cast<Long>(inside.properties().ColumnTextY);
    list.letColumnTextY(-2000000000);
    const Long height = band - 2000000000;
    ASSERT_EQ(inside.ColumnHeight(), height);
    EXPECT_EQ(inside.VisibleItems(), (200 - height) / 20);
    EXPECT_EQ(inside.vertical().Visible(), false);
}

TEST_F(FarNumbers, RowsOfOnePixelAreCountedFromFarBelowZeroWithoutAWalk) {
    fill(5);
    list.letRowHeight(15);
    list.letColumnTextY(-2000000000);
    const Long rows = 200 - inside.ColumnHeight();
    for (int i = 0; i < 1000; ++i)
        ASSERT_EQ(inside.VisibleItems(), rows);
}

TEST_F(FarNumbers, RowsThatFitAreTheWholePartOfTheRoom) {
    fill(60);
    for (Long height = 1; height < 60; ++height) {
        inside.properties().RowHeight = static_cast<Single>(height * 15);
        EXPECT_EQ(inside.VisibleItems(), (200 - inside.ColumnHeight()) / height) << height;
    }
}

TEST_F(FarNumbers, AHeaderOfAnyWidthGetsTheStampsThatCanBeSeen) {
    list.letColorStyle(cXPBlue);
    fill(1, {60});
    hover({30, 12});
    list.letColumnWidth(1, 3e10F); // two thousand million pixels
    inside.horizontal().letVisible(true);
    inside.horizontal().letValue(1500000000);
    hover({30, 12});
    EXPECT_TRUE(says(inside.header(), "hover=1"));
}

TEST_F(FarNumbers, ABarFarAboveTheFirstRowIsLookedThroughOnce) {
    fill(5);
    letBar(-2000000000);
    list.Redraw();
    hover(At{30, 100});
    desktop.press();
    desktop.release();
    letBar(0);
    list.Redraw();
    EXPECT_EQ(selection(), "index=4 selected=4") << "what is there is found behind it";
}

TEST_F(FarNumbers, RowsWithoutAHeightArePassedOverOnceFromFarAbove) {
    fill(5);
    Error().letSilentError(true); // or the pass would end with the first report
    inside.properties().RowHeight = 0;
    letBar(-2000000000);
    list.Redraw();
    EXPECT_TRUE(says(inside.painting(), "held=no"));
}

TEST_F(FarNumbers, ABarAtTheEndOfAllNumbersHidesTheObjectsThatAreThere) {
    fill(5);
    const auto object = TestObject::control(300);
    list.setItemObject(Long{1}, Long{1}, object);
    letBar(most);
    Error().letSilentError(true);
    list.Redraw();
    EXPECT_TRUE(says(inside.painting(), "held=no"));
    Error().letSilentError(false);
    list.Redraw();
    EXPECT_EQ(lastReport(), "6 Redraw") << "there is no row behind the last number";
}

TEST_F(FarNumbers, AWheelThatTurnsByTheMostLinesStaysWithinTheNumbers) {
    fill(60);
    hover(At{30, 100});
    for (const Long lines : {most, least, least + 1}) {
        list.letWheelScrollLines(lines);
        for (const Long turn : {-120, 120, -120, 120})
            desktop.wheel(turn);
        letBar(0);
    }
    list.letWheelScrollLines(least + 1);
    desktop.wheel(-120);
    EXPECT_EQ(list.TopIndex(), least + 1);
}

TEST_F(FarNumbers, ArrowsFromFarBelowTheTopGoToTheRow) {
    fill(60);
    list.letListIndex(3);
    letBar(least);
    list.window().setFocus();
    key(keys::down);
    EXPECT_EQ(inside.properties().ListIndex, 4);
    EXPECT_EQ(list.TopIndex(), 0) << "the index less the rows that fit, and not below 0";
    letBar(least);
    key(keys::up);
    EXPECT_EQ(inside.properties().ListIndex, 3);
    EXPECT_EQ(list.TopIndex(), 3);
}

TEST_F(FarNumbers, AnIndexBelowATopAtTheEndOfAllNumbersIsReported) {
    fill(60);
    letBar(most);
    list.letListIndex(4);
    EXPECT_EQ(inside.properties().ListIndex, 4);
    letBar(most);
    inside.letButton(leftButton);
    inside.mouseActionTimer().Tag = u"down";
    desktop.runtime().boxes.clear();
    inside.letAllowItemMoving(true);
    desktop.runtime().boxes.clear();
    inside.mouseActionTimer().letEnabled(true);
    desktop.advance(std::chrono::milliseconds(1));
    EXPECT_EQ(lastReport(), "6 tmrMouseAction_Timer");
}

} // namespace
} // namespace lumtex::testing
