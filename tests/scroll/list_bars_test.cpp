/// The bars of a list under the pointer: what moves, what the host hears, what is painted.
#include "bars/bar_fixture.h"
#include "list_fixture.h"
#include "picture_check.h"

namespace lumtex::testing {

using namespace std::chrono_literals;

/// 300 x 200 pixels with two columns of 250 and 50 rows; both bars show.
class ListBars : public ListFixture {
  protected:
    ListBars() {
        addColumns({250, 250});
        addRows(50, u"cell,cell");
        events.log.clear();
    }

    /// A point of the vertical bar, along it.
    void moveOn(bars::ScrollBar& bar, Single lengthwise) {
        if (&bar == &inside.vertical())
            desktop.move(bar.window(), 8, lengthwise);
        else
            desktop.move(bar.window(), lengthwise, 8);
    }
    void pressOn(bars::ScrollBar& bar, Single lengthwise) {
        moveOn(bar, lengthwise);
        desktop.press();
    }
    bars::lmVScroll& VS() { return inside.vertical(); }
    bars::lmHScroll& HS() { return inside.horizontal(); }
    Lines take() { return std::exchange(events.log, {}); }
};

TEST_F(ListBars, AnArrowStepsItsLinesAndPaintsOnce) {
    list.letScrollButtonJumpLines(3);
    EXPECT_EQ(paintsOf([&] { pressOn(VS(), VS().Height() - 5); }), 1);
    EXPECT_EQ(list.TopIndex(), 3);
    desktop.release();
    EXPECT_EQ(paintsOf([&] { pressOn(HS(), HS().Width() - 5); }), 1);
    EXPECT_EQ(HS().Value(), 1);
    desktop.release();
    EXPECT_EQ(take(), Lines{}) << "a step is no Scroll";
}

TEST_F(ListBars, AHeldArrowPaintsAtEachStep) {
    EXPECT_EQ(paintsOf([&] {
                  pressOn(VS(), VS().Height() - 5);
                  desktop.advance(550ms);
                  desktop.release();
              }),
              4);
    EXPECT_EQ(list.TopIndex(), 4);
    EXPECT_EQ(take(), Lines{});
}

// Wanted: scrolling sideways raises no event.
TEST_F(ListBars, ADragIsToldUpAndDownAlone) {
    pressOn(VS(), 25);
    EXPECT_EQ(paintsOf([&] { moveOn(VS(), 35); }), 1);
    EXPECT_EQ(take(), Lines{"Scroll"});
    EXPECT_GT(list.TopIndex(), 0);
    EXPECT_EQ(paintsOf([&] { desktop.release(); }), 1) << "the Change at its end";
    EXPECT_EQ(take(), Lines{});

    pressOn(HS(), 25);
    EXPECT_EQ(paintsOf([&] { moveOn(HS(), 30); }), 1);
    EXPECT_GT(HS().Value(), 0);
    desktop.release();
    EXPECT_EQ(take(), Lines{});
}

TEST_F(ListBars, ATroughPressEndsWhenTheThumbArrives) {
    list.letScrollButtonJumpLines(5);
    list.letTopIndex(45);
    pressOn(VS(), 40);
    desktop.advance(10000ms);
    const bars::ScrollThumb& thumb = bars::ScrollInspector::thumb(VS());
    EXPECT_LE(thumb.window().Top(), 40);
    EXPECT_GT(list.TopIndex(), 0);
    EXPECT_FALSE(bars::ScrollInspector::pressActive(VS()));
    EXPECT_EQ(take(), Lines{});
}

TEST_F(ListBars, TheDragShowsTheLatestPositionWhenMovesPileUp) {
    // Moves that wait in the queue run inside the yield of the first one's Change.
    pressOn(VS(), 25);
    desktop.postMove(desktop.onDesktop(VS().window(), 8, 35));
    desktop.postMove(desktop.onDesktop(VS().window(), 8, 45));
    desktop.run();
    const Long value = VS().Value();
    EXPECT_EQ(inside.rows()[static_cast<std::size_t>(value)].Top, static_cast<Single>(inside.ColumnHeight()))
        << "the top row was painted there";
    EXPECT_TRUE(says(inside.scroll(), "pending=no"));
    EXPECT_TRUE(says(inside.painting(), "held=no"));
    EXPECT_EQ(take(), (Lines{"  Scroll", "Scroll"}));
}

TEST_F(ListBars, ADisabledListTakesNoPressOnItsBars) {
    list.letEnabled(false);
    pressOn(VS(), VS().Height() - 5);
    EXPECT_EQ(list.TopIndex(), 0);
}

TEST_F(ListBars, LookAsTheReferenceBesideTheHeader) {
    list.letColumnText(1, u"Name");
    list.letTopIndex(12);
    moveOn(VS(), 60);
    EXPECT_TRUE(showsPicture("scroll-list", desktop.screenshot(list.window())));
}

TEST_F(ListBars, ScrolledToTheirEndsLookAsTheReference) {
    list.letColorStyle(cXPOlive);
    pressOn(HS(), 25);
    moveOn(HS(), 1000);
    desktop.release();
    list.letTopIndex(49);
    EXPECT_TRUE(showsPicture("scroll-list-end", desktop.screenshot(list.window())));
}

} // namespace lumtex::testing
