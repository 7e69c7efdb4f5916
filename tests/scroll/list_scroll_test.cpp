#include "bars/bar_fixture.h"
#include "list_fixture.h"

#include <random>

namespace lumtex::testing {

/// 300 x 200 pixels; headers are 25 tall.
class ListScroll : public ListFixture {
  protected:
    void fixedRows(int pixels) {
        list.letRowsDynamic(false);
        list.letRowHeight(static_cast<Single>(pixels * 15));
    }
};

TEST_F(ListScroll, WithoutColumnsBothBarsAreHiddenAndAtZero) {
    addColumns({400});
    addRows(3);
    inside.clearColumns();
    list.CheckScroll();
    for (bars::ScrollBar* bar :
         std::initializer_list<bars::ScrollBar*>{&inside.vertical(), &inside.horizontal()}) {
        EXPECT_FALSE(bar->Visible());
        EXPECT_EQ(bar->Max(), 0);
        EXPECT_EQ(bar->Value(), 0);
        EXPECT_EQ(bar->Tag, u"True") << "the decisions stay";
    }
}

TEST_F(ListScroll, TheCheckCountsTheColumnsInTheSharedCounter) {
    addColumns({50, 50, 50});
    list.letAutoRedraw(false);
    inside.counters().scanIndex = -7;
    list.CheckScroll();
    EXPECT_EQ(inside.counters().scanIndex, 3) << "one past the last column";
}

// Wanted: the whole width counts, although the vertical bar takes some of it away.
TEST_F(ListScroll, ColumnsThatFillTheSurfaceNeedNoBarAndOnePixelMoreDoes) {
    addColumns({300});
    addRows(3);
    EXPECT_EQ(inside.vertical().Tag, u"True");
    EXPECT_EQ(inside.horizontal().Tag, u"False");
    list.letColumnWidth(1, 301 * 15);
    list.CheckScroll();
    EXPECT_EQ(inside.horizontal().Tag, u"True");
    EXPECT_EQ(inside.horizontal().Max(), 1);
}

// Wanted: any shrinking of the range throws the view back to the left edge.
TEST_F(ListScroll, ARangeThatShrinksThrowsTheViewBack) {
    addColumns({400});
    inside.horizontal().letValue(20);
    list.letColumnWidth(1, 399 * 15);
    list.CheckScroll();
    EXPECT_EQ(inside.horizontal().Max(), 99);
    EXPECT_EQ(inside.horizontal().Value(), 0);
}

// Wanted: a hidden horizontal bar is widened too.
TEST_F(ListScroll, ANeededVerticalBarWidensTheOther) {
    fixedRows(25);
    addColumns({50});
    addRows(8);
    EXPECT_EQ(inside.vertical().Tag, u"True");
    EXPECT_EQ(inside.horizontal().Tag, u"False");
    EXPECT_EQ(inside.horizontal().Max(), static_cast<Long>(inside.vertical().Width()));
}

// Wanted: with a positive height this test cannot be met.
TEST_F(ListScroll, RowsThatFillTheSurfaceExactlyNeedNoBarAndOneMoreDoes) {
    fixedRows(25);
    addColumns({50});
    addRows(7);
    EXPECT_EQ(inside.VisibleItems(), 7);
    EXPECT_TRUE(says(inside.scroll(), "hidden=yes"));
    EXPECT_EQ(inside.vertical().Tag, u"False");
    addRows(1);
    EXPECT_EQ(inside.vertical().Max(), 1);
    EXPECT_TRUE(says(inside.scroll(), "hidden=yes"));
}

TEST_F(ListScroll, RowsThatFitAgainGoBackToTheTop) {
    addColumns({50});
    fixedRows(20);
    addRows(50);
    list.letTopIndex(20);
    list.letAutoCheckScroll(false);
    list.letAutoRedraw(false);
    while (list.RowsCount() > 3)
        list.RowsRemove(1);
    EXPECT_EQ(inside.vertical().Value(), 20);
    list.CheckScroll();
    EXPECT_EQ(inside.vertical().Value(), 0);
    EXPECT_EQ(inside.vertical().Max(), 0);
}

TEST_F(ListScroll, DynamicRowsThatFillTheSurfaceExactlyAllShow) {
    addColumns({50});
    addRows(10);
    const auto visibleWith = [&](Single height) {
        for (RowRecord& row : inside.rows())
            row.Height = height;
        return inside.VisibleItems();
    };
    EXPECT_EQ(visibleWith(25), 7);
    EXPECT_EQ(visibleWith(24), 7);
    inside.rows()[6].Height = 32;
    EXPECT_EQ(inside.VisibleItems(), 6) << "24 x 6 + 32 is one pixel too many";
    inside.rows()[6].Height = 31;
    EXPECT_EQ(inside.VisibleItems(), 7);
    EXPECT_EQ(visibleWith(17.5), 10) << "all there are, to the last pixel";
    EXPECT_EQ(visibleWith(10), 10) << "and there are no more";
}

TEST_F(ListScroll, DynamicRowsNeedTheBarFromTheSecondOn) {
    addColumns({50});
    addRows(1);
    EXPECT_EQ(inside.vertical().Tag, u"False");
    addRows(1);
    EXPECT_EQ(inside.vertical().Tag, u"True");
    EXPECT_EQ(inside.vertical().Max(), 1);
}

// Wanted: the walk starts at row 0 whatever the top row is, and a row never painted has no height.
TEST_F(ListScroll, VisibleRowsAreCountedFromTheTopOfTheList) {
    list.letAutoRedraw(false);
    addColumns({50});
    addRows(20);
    EXPECT_EQ(inside.VisibleItems(), 20) << "before the first paint every row counts as fitting";
    list.Redraw();
    // (200 - 25) / 17 is a little over 10; the rows below the view have no height yet.
    inside.vertical().letValue(15);
    EXPECT_EQ(inside.VisibleItems(), 10);
}

TEST_F(ListScroll, ThePaintedRowsCountWhereverASortPutThem) {
    list.letAutoRedraw(false);
    addColumns({50});
    addRows(9'000);
    inside.vertical().letValue(4'000);
    list.Redraw();
    std::mt19937 random(20261123);
    for (Long row = 1; row <= list.RowsCount(); ++row)
        list.letItemText(row, 1, fromUtf8(std::to_string(random())));
    list.Sort(1, cAscending, cSortNumeric);
    Single y = 25;
    Long fitting = -1;
    for (Long row = 0; y <= 200; ++row) {
        ++fitting;
        if (row == list.RowsCount())
            break;
        y += inside.rows()[static_cast<std::size_t>(row)].Height;
    }
    EXPECT_EQ(inside.VisibleItems(), fitting);
    EXPECT_GT(fitting, 1'000) << "few rows have a height, and they are scattered";
}

// Wanted: twice in a row, and never compared with the bar's end.
TEST_F(ListScroll, TheTopRowIsBoundByTheRowsAndNotByTheBar) {
    addColumns({50});
    addRows(5);
    list.letTopIndex(99);
    EXPECT_EQ(list.TopIndex(), 4);
    list.letTopIndex(-3);
    EXPECT_EQ(list.TopIndex(), 0);
    list.RowsClear();
    list.letTopIndex(3);
    EXPECT_EQ(list.TopIndex(), -1) << "an empty list has no row to show";
}

// Wanted: the ranges, and whether the bars are needed, stay as the last check left them.
TEST_F(ListScroll, AResizeMovesTheBarsAndKeepsTheDecision) {
    addColumns({250});
    addRows(2);
    list.window().place(100, 100, 200, 150);
    EXPECT_EQ(inside.horizontal().Tag, u"False");
    EXPECT_FALSE(inside.horizontal().Visible());
    EXPECT_EQ(inside.vertical().Left(), 200 - inside.vertical().Width() - 1);
    EXPECT_EQ(inside.vertical().Height(), 148);
    list.CheckScroll();
    EXPECT_TRUE(inside.horizontal().Visible());
}

TEST_F(ListScroll, BothBarsLeaveTheirCornerFree) {
    addColumns({400});
    addRows(2);
    EXPECT_EQ(inside.vertical().Top(), 1);
    EXPECT_EQ(inside.vertical().Height(), 198 - inside.horizontal().Height());
    EXPECT_EQ(inside.horizontal().Width(), 298 - inside.vertical().Width());
    EXPECT_EQ(inside.horizontal().Top(), 199 - inside.horizontal().Height());
}

TEST_F(ListScroll, WithoutABorderTheBarsTouchTheEdges) {
    addColumns({400});
    addRows(2);
    list.letBorderVisible(false);
    list.CheckScroll();
    EXPECT_EQ(inside.vertical().Left(), 300 - inside.vertical().Width());
    EXPECT_EQ(inside.vertical().Top(), 0);
    EXPECT_EQ(inside.horizontal().Left(), 0);
    EXPECT_EQ(inside.horizontal().Top(), 200 - inside.horizontal().Height());
}

TEST_F(ListScroll, ResizingShowsNoHiddenBarUntilTheNextCheck) {
    fixedRows(25);
    addColumns({50});
    addRows(7);
    list.window().place(100, 100, 300, 100);
    EXPECT_FALSE(inside.vertical().Visible());
    list.CheckScroll();
    EXPECT_TRUE(inside.vertical().Visible());
    list.window().place(100, 100, 300, 400);
    EXPECT_TRUE(inside.vertical().Visible());
    list.CheckScroll();
    EXPECT_FALSE(inside.vertical().Visible());
    EXPECT_EQ(inside.vertical().Height(), 0) << "a bar that is not needed has no length";
}

TEST_F(ListScroll, ABarThatComesBackHasAThumbOfItsLength) {
    fixedRows(25);
    addColumns({50});
    addRows(9);
    ASSERT_TRUE(inside.vertical().Visible());
    const Single length = bars::ScrollInspector::thumb(inside.vertical()).window().Height();
    EXPECT_EQ(length, 198 - 2 - 34) << "9 rows, 7 of which fit";
    list.window().place(100, 100, 300, 400);
    list.CheckScroll();
    list.window().place(100, 100, 300, 200);
    list.CheckScroll();
    EXPECT_EQ(bars::ScrollInspector::thumb(inside.vertical()).window().Height(), length);
}

TEST_F(ListScroll, TheEmptyColumnFieldAddsToTheRange) {
    list.letEmptyColumnFieldWidth(20 * 15);
    addColumns({310});
    EXPECT_EQ(inside.horizontal().Max(), 30);
}

TEST_F(ListScroll, AMissingColumnIsMadeOnTheWay) {
    addColumns({100, 250});
    inside.columns()[0].reset();
    list.CheckScroll();
    EXPECT_NE(inside.columns()[0], nullptr);
    EXPECT_EQ(inside.horizontal().Tag, u"False");
}

TEST_F(ListScroll, ASurfaceShorterThanItsHeadersHasNoVisibleRow) {
    addColumns({50});
    EXPECT_EQ(inside.VisibleItems(), 0) << "no rows";
    EXPECT_TRUE(says(inside.scroll(), "visible=-1"));
    addRows(3);
    list.window().place(0, 0, 300, 24);
    EXPECT_EQ(inside.VisibleItems(), -1);
    fixedRows(20);
    EXPECT_EQ(inside.VisibleItems(), -1);
    list.window().place(0, 0, 300, 25);
    EXPECT_EQ(inside.VisibleItems(), 0);
}

TEST_F(ListScroll, TheHorizontalBarTakesRoomFromTheRows) {
    fixedRows(25);
    addColumns({50});
    addRows(7);
    EXPECT_EQ(inside.VisibleItems(), 7);
    list.letColumnWidth(1, 400 * 15);
    list.CheckScroll();
    EXPECT_EQ(inside.VisibleItems(), 6);
    EXPECT_EQ(inside.vertical().Max(), 1);
    EXPECT_EQ(inside.horizontal().Max(), 100 + 17);
}

TEST_F(ListScroll, ATopRowRaisesARangeThatIsTooShort) {
    fixedRows(25);
    addColumns({50});
    list.letAutoCheckScroll(false);
    addRows(20);
    EXPECT_EQ(inside.vertical().Max(), 0);
    list.letTopIndex(3);
    EXPECT_EQ(inside.vertical().Max(), 13);
    EXPECT_EQ(list.TopIndex(), 3);
    list.letTopIndex(18);
    EXPECT_EQ(inside.vertical().Max(), 13);
    EXPECT_EQ(inside.vertical().Value(), 18) << "past the bar's end";
    EXPECT_EQ(host.changed.back(), u"TopIndex");
}

TEST_F(ListScroll, TwoDynamicRowsNeedTheBarHoweverTallTheSurface) {
    list.window().place(0, 0, 300, 2000);
    addColumns({50});
    addRows(2);
    EXPECT_TRUE(inside.vertical().Visible());
    EXPECT_EQ(inside.vertical().Max(), 1);
}

// Wanted: rows that were never painted have no height, and all of them fit.
TEST_F(ListScroll, RowsOfTheirOwnHeightFitByWhatTheLastPaintsMeasured) {
    addColumns({50});
    const auto walk = [&] {
        auto y = static_cast<Single>(inside.ColumnHeight());
        Long fitting = -1;
        while (y <= 200 && ++fitting < list.RowsCount())
            y += inside.rows()[static_cast<std::size_t>(fitting)].Height;
        return fitting;
    };
    list.letAutoRedraw(false);
    list.letAutoCheckScroll(false);
    const auto expectTheWalk = [&](const char* when) { EXPECT_EQ(inside.VisibleItems(), walk()) << when; };
    addRows(500);
    EXPECT_EQ(inside.VisibleItems(), 500);
    expectTheWalk("never painted");
    list.Redraw();
    EXPECT_LT(inside.VisibleItems(), 20);
    expectTheWalk("painted");
    list.letItemText(1, 1, u"zzz");
    list.Sort(1);
    expectTheWalk("sorted");
    list.RowsRemove(3);
    expectTheWalk("removed");
    list.RowsClear();
    addRows(400);
    EXPECT_EQ(inside.VisibleItems(), 400);
    list.window().place(0, 0, 300, 20);
    EXPECT_EQ(inside.VisibleItems(), -1) << "not even the headers fit";
}

// Wanted: scrolling sideways raises no event.
TEST_F(ListScroll, OnlyScrollingUpAndDownIsTold) {
    addColumns({50});
    inside.horizontalScroll();
    EXPECT_TRUE(events.log.empty());
    inside.verticalScroll();
    EXPECT_EQ(events.log, std::vector<std::string>{"Scroll"});
}

} // namespace lumtex::testing
