#include "broken_picture.h"
#include "painted_list.h"

namespace lumtex::testing {

/// The order of a pass, its geometry, and what it leaves behind.
using PaintPassOrder = PaintedList;

TEST_F(PaintPassOrder, WithoutColumnsOnlyBackgroundCornerAndBorderArePainted) {
    list.letBorderVisible(true);
    list.setBackgroundPicture(plainPicture(10, 5));
    inside.vertical().letVisible(true);
    inside.horizontal().letVisible(true);
    inside.vertical().move(183, 0);
    inside.horizontal().move(0, 83);
    inside.horizontal().letWidth(17);
    const Lines expected = {"Cls",
                            "BackColor FFFFFF",
                            // Wanted: the bar's Width, not its Height.
                            "Picture 172,77",
                            "Fill 182,82-200,100 FFFFFF",
                            "Box 0,0-199,99 B99D7F"};
    EXPECT_EQ(repaint(), expected);
}

TEST_F(PaintPassOrder, TheBackgroundPictureMakesRoomForTheHorizontalBarsWidth) {
    list.setBackgroundPicture(plainPicture(10, 5));
    inside.horizontal().letVisible(true);
    inside.horizontal().letWidth(40);
    // Wanted: the bar's Width, not its Height.
    EXPECT_EQ(repainted("Picture"), Lines{"Picture 190,55"});
}

TEST_F(PaintPassOrder, WithoutRowsTheHeadersAndTheEmptyFieldArePainted) {
    addColumns({60});
    repaint();
    EXPECT_EQ(drawn().lines("Fill").size(), 2U);
    EXPECT_EQ(drawn().lines("Text").size(), 1U);
    EXPECT_TRUE(says(inside.painting(), "held=no"));
}

TEST_F(PaintPassOrder, ARedrawDuringARunningPaintPaintsNothing) {
    addColumns({60});
    bool nested = false;
    drawn().before = [&](const std::string& line) {
        if (line.rfind("Fill", 0) != 0 || nested)
            return;
        nested = true;
        const std::size_t before = drawn().log.size();
        list.Redraw();
        EXPECT_EQ(drawn().log.size(), before);
    };
    list.Redraw();
    drawn().before = nullptr;
    EXPECT_TRUE(nested);
}

TEST_F(PaintPassOrder, ADisabledListHasItsOwnBackground) {
    list.letBackColorDisabled(0x112233);
    list.letEnabled(false);
    EXPECT_EQ(repainted("BackColor"), Lines{"BackColor 112233"});
}

TEST_F(PaintPassOrder, AColumnOfNoWidthPaintsNothingButOneMoreGridLine) {
    addColumns({60, 0, 60});
    addRows(1, u"a,b,c");
    list.letGridLines(true);
    repaint();
    EXPECT_TRUE(drawn().lines("Text 'b'").empty());
    EXPECT_EQ(drawn().lines("Text ''").size(), 2U) << "two headers";
    EXPECT_EQ(drawn().lines("Line 59,25-"), (Lines{"Line 59,25-59,45 C0C0C0", "Line 59,25-59,45 C0C0C0"}));
    EXPECT_EQ(drawn().lines("Text 'c'").size(), 2U);
    EXPECT_EQ(drawn().lines("Text 'c'")[1].substr(0, 11), "Text 'c' 65");
}

TEST_F(PaintPassOrder, WithHiddenHeadersRowsStartOnTopOfTheBorder) {
    addColumns({60, 70});
    addRows(1, u"a,b");
    list.letBorderVisible(true);
    list.letHideColumnHeaders(true);
    inside.letHoverColumn(5);
    repaint();
    EXPECT_EQ(drawn().lines("Text 'a'")[1].substr(0, 12), "Text 'a' 6,2") << "half of what 17 leave of 20";
    EXPECT_EQ(inside.rows()[0].Top, 0);
    EXPECT_TRUE(says(inside.header(), "hover=6")) << "keeps its last value";
    EXPECT_TRUE(says(inside.painting(), "right=130"))
        << "the widths alone, without the first column's left edge";
}

TEST_F(PaintPassOrder, AVisibleBarAtTheLeftEndStopsTheSearchAtTheFirstColumn) {
    addColumns({60, 70});
    list.letBorderVisible(true);
    inside.horizontal().letVisible(true);
    inside.horizontal().letValue(0);
    repaint();
    EXPECT_TRUE(says(inside.painting(), "first=1 x=1"));
}

struct ScrollCase {
    Long value;
    Long firstColumn;
    Single firstColumnX;
};

TEST_F(PaintPassOrder, TheFirstColumnIsTheOneThatHoldsTheScrollPosition) {
    addColumns({60, 70, 80});
    inside.horizontal().letVisible(true);
    for (const ScrollCase& row :
         {ScrollCase{10, 0, -10}, {60, 0, -60}, {61, 1, -1}, {130, 1, -70}, {131, 2, -1}, {210, 2, -80}}) {
        inside.horizontal().letValue(row.value);
        repaint();
        EXPECT_TRUE(says(inside.painting(), "first=" + fromOne(row.firstColumn))) << row.value;
        EXPECT_TRUE(says(inside.painting(), "x=" + numberText(row.firstColumnX))) << row.value;
    }
}

// Wanted: a search that ran through keeps the left edge of the last pass.
TEST_F(PaintPassOrder, AScrollPositionPastTheLastColumnKeepsTheLastPassesEdge) {
    addColumns({60, 70});
    inside.horizontal().letVisible(true);
    inside.horizontal().letValue(70);
    repaint();
    ASSERT_TRUE(says(inside.painting(), "x=-10"));
    inside.horizontal().letValue(500);
    repaint();
    EXPECT_TRUE(says(inside.painting(), "first=1 x=-10"));
}

TEST_F(PaintPassOrder, OnePixelLineBetweenHeaderAndFirstRowShowsTheSurface) {
    addColumns({60});
    addRows(1, u"a");
    list.letBackColor(0x0000FF);
    list.letItemBackColor(1, 1, Long{0x00FF00});
    repaint();
    EXPECT_EQ(inside.rows()[0].Top, 25);
    EXPECT_EQ(pixel(50, 25), 0xFF0000U);
    EXPECT_EQ(pixel(50, 26), 0x00FF00U);
}

TEST_F(PaintPassOrder, ARowStartingExactlyAtTheBottomIsPaintedAndOneBelowIsNot) {
    addColumns({60});
    addRows(9, u"a");
    list.letHideColumnHeaders(true);
    repaint();
    // Tops are 0, 20, ..., 100; the surface is 100 tall.
    EXPECT_EQ(inside.rows()[5].Top, 100);
    EXPECT_EQ(inside.rows()[5].Height, 20);
    EXPECT_EQ(inside.rows()[6].Height, 0) << "never reached";
    EXPECT_EQ(drawn().lines("Text 'a'").size(), 12U);
}

TEST_F(PaintPassOrder, ColumnsPastTheRightEdgeArePaintedAll) {
    addColumns({150, 150, 150});
    addRows(1, u"a,b,c");
    EXPECT_EQ(repainted("Text 'c'").size(), 2U);
}

TEST_F(PaintPassOrder, AColumnWhollyLeftOfTheSurfaceIsNotLookedAt) {
    addColumns({60, 60});
    addRows(1, u"a,b");
    list.letHideColumnHeaders(true);
    inside.horizontal().letVisible(true);
    inside.horizontal().letValue(200); // the search runs through, so painting starts at the old edge
    inside.letFirstColumnX(-61);
    repaint();
    EXPECT_TRUE(drawn().lines("Text 'a'").empty());
    EXPECT_EQ(drawn().lines("Text 'b'").size(), 2U);
}

TEST_F(PaintPassOrder, GridLinesOfARow) {
    addColumns({60, 60});
    addRows(1, u"a,b");
    list.letBorderVisible(true);
    list.letGridLines(true);
    list.letGridLineColor(0x123456);
    repaint();
    EXPECT_EQ(drawn().lines("Line 60,25"), Lines{"Line 60,25-60,45 123456"});
    EXPECT_EQ(drawn().lines("Line 120,25"), Lines{"Line 120,25-120,45 123456"});
    EXPECT_EQ(drawn().lines("Line 1,45"), Lines{"Line 1,45-199,45 123456"});
}

TEST_F(PaintPassOrder, TheDropMarkerIsABarOfTwoPixelsAcrossTheSurface) {
    addColumns({60});
    addRows(3, u"a");
    inside.letAllowItemMoving(true);
    inside.letDropTarget(1);
    EXPECT_EQ(repainted("Box"), Lines{"Box 0,45-200,46 0"});
    inside.letAllowItemMoving(false);
    EXPECT_TRUE(repainted("Box").empty());
}

// Wanted: the height of the cell counts, where its font is taller than the band so far.
TEST_F(PaintPassOrder, FixedRowsHaveTheirHeightWhateverTheirFont) {
    addColumns({60});
    addRows(2, u"a");
    list.letItemFontSize(1, 1, 40);
    repaint();
    EXPECT_EQ(inside.rows()[0].Height, 20);
    EXPECT_EQ(inside.rows()[1].Top, 45);
}

// Wanted: until the first icon of a pass, every row has the height of the default font, however tall the
// fonts of its cells are.
TEST_F(PaintPassOrder, DynamicRowsHaveTheDefaultFontsHeightUntilTheFirstIcon) {
    list.letRowsDynamic(true);
    addColumns({60, 60});
    addRows(4, u"a,b");
    list.letItemFontSize(1, 2, 24);
    list.letItemFontSize(3, 1, 24);
    list.setItemIcon(3, 2, plainPicture(4, 4));
    repaint();
    const Single plain = inside.rows()[0].Height;
    EXPECT_EQ(plain, 17);
    EXPECT_EQ(inside.rows()[1].Height, plain);
    // From the first icon on a row keeps what was measured: of its last cell that is taller than the band so
    // far.
    EXPECT_EQ(inside.rows()[2].Height, 17) << "the tall cell was measured in the font before it";
    EXPECT_EQ(inside.rows()[3].Height, 17);
}

// Wanted: with dynamic rows the font in force is that of the cell painted before.
TEST_F(PaintPassOrder, BelowAnIconACellIsMeasuredInTheFontOfTheCellBefore) {
    list.letRowsDynamic(true);
    addColumns({60, 60});
    addRows(3, u"a,b");
    list.setItemIcon(1, 1, plainPicture(4, 4));
    list.letItemFontSize(1, 2, 24);
    list.Redraw();
    window().surface().setFont(FontSpec{.Name = u"Verdana", .Size = 24});
    const Single tall = window().surface().textHeight(u"A");
    ASSERT_GT(tall, 17);
    repaint();
    EXPECT_EQ(inside.rows()[0].Height, 17) << "the tall cell was measured small";
    EXPECT_EQ(inside.rows()[1].Height, tall) << "its font was still in force for the next row's first cell";
    EXPECT_EQ(inside.rows()[2].Height, 17);
}

TEST_F(PaintPassOrder, TheCornerIsOnePixelLargerThanTheBarsSquare) {
    addColumns({60});
    inside.vertical().letVisible(true);
    inside.horizontal().letVisible(true);
    // Wanted: one pixel more, to the left and above, than the square between the bars.
    EXPECT_EQ(repainted("Fill 182"), Lines{"Fill 182,82-200,100 FFFFFF"});
    inside.vertical().letVisible(false);
    EXPECT_TRUE(repainted("Fill 182").empty());
}

TEST_F(PaintPassOrder, MissingColumnsAreMadeOnTheWay) {
    addColumns({60});
    inside.columns()[0].reset();
    repaint();
    ASSERT_NE(inside.columns()[0], nullptr);
    EXPECT_EQ(inside.columns()[0]->Width, 0);
}

struct GripCase {
    const char* name;
    Single x;
    Long resizeColumn;
};

// Wanted: the grip names both sides of the divider, but only points inside this column get here.
TEST_F(PaintPassOrder, TheGripIsTheLastFivePixelsInsideAColumn) {
    addColumns({60, 60});
    for (const GripCase& row : {GripCase{"before it", 54, -1},
                                {"its first pixel", 55, 0},
                                {"its last pixel", 59, 0},
                                {"behind the divider", 60, -1}}) {
        inside.letDividerColumn(-1);
        mouseAt(row.x, 5);
        repaint();
        EXPECT_TRUE(says(inside.header(), "divider=" + fromOne(row.resizeColumn))) << row.name;
    }
}

TEST_F(PaintPassOrder, HoverReachesFromTheTopToTheHeadersFootBothIncluded) {
    addColumns({60});
    struct {
        Single y;
        Long hover;
    } const table[] = {{-1, -1}, {0, 0}, {25, 0}, {25.5, -1}};
    for (const auto& row : table) {
        mouseAt(10, row.y);
        repaint();
        EXPECT_TRUE(says(inside.header(), "hover=" + fromOne(row.hover))) << row.y;
        EXPECT_TRUE(says(inside.header(), "current=1")) << "the column under the mouse, whatever its height";
    }
}

TEST_F(PaintPassOrder, AMouseThatIsOutsideHoversNothing) {
    addColumns({60});
    mouseAt(10, 5);
    inside.letInside(false);
    repaint();
    EXPECT_TRUE(says(inside.header(), "hover=none"));
}

TEST_F(PaintPassOrder, APressOnTheGripStartsAResize) {
    addColumns({60, 60});
    inside.beginPress();
    mouseAt(57, 5, leftButton);
    repaint();
    EXPECT_TRUE(says(inside.header(), "resizing=yes pending=no pressed=none"));
    EXPECT_TRUE(inside.guide().Visible());
    EXPECT_EQ(inside.guide().from(), (Point{57, 0}));
    EXPECT_EQ(inside.guide().to(), (Point{57, 100}));
}

TEST_F(PaintPassOrder, WithFixedColumnsAPressOnTheGripPressesTheHeader) {
    addColumns({60, 60});
    list.letFixColumns(true);
    inside.beginPress();
    mouseAt(57, 5, leftButton);
    repaint();
    EXPECT_TRUE(says(inside.header(), "resizing=no pressed=1"));
    EXPECT_TRUE(says(inside.header(), "divider=1")) << "still kept";
}

TEST_F(PaintPassOrder, WhileResizingTheResizedColumnHovers) {
    addColumns({60, 60});
    inside.beginResize(0);
    mouseAt(80, 5, leftButton);
    repaint();
    EXPECT_TRUE(says(inside.header(), "hover=1"));
}

TEST_F(PaintPassOrder, APendingPressBecomesAColumnPressInTheFirstPaint) {
    addColumns({60, 60});
    inside.beginPress();
    mouseAt(70, 5, leftButton);
    repaint();
    EXPECT_TRUE(says(inside.header(), "pressed=2 pending=no"));
}

TEST_F(PaintPassOrder, ThePointerChangesOverADivider) {
    addColumns({60});
    mouseAt(57, 5);
    repaint();
    EXPECT_EQ(window().inner().MousePointer(), CursorShape::custom);
    EXPECT_EQ(window().inner().MouseIcon(), inside.artwork().imgResize);
    inside.letDividerColumn(-1);
    mouseAt(30, 5);
    repaint();
    EXPECT_EQ(window().inner().MousePointer(), CursorShape::standard);
    list.letFixColumns(true);
    mouseAt(57, 5);
    repaint();
    EXPECT_EQ(window().inner().MousePointer(), CursorShape::standard);
}

TEST_F(PaintPassOrder, AFailureBeforeTheRowsRaisesAnEventAndFreesThePass) {
    addColumns({60});
    addRows(1, u"a");
    list.setBackgroundPicture(std::make_shared<BrokenPicture>());
    for (const bool silent : {false, true}) {
        Error().letSilentError(silent);
        events.log.clear();
        repaint();
        EXPECT_EQ(events.log, Lines{"ListViewError eSub=Redraw eNumber=481 eDescription=Invalid picture"});
        EXPECT_TRUE(says(inside.painting(), "held=no"));
        EXPECT_TRUE(drawn().lines("Text").empty()) << "the pass ended";
        EXPECT_TRUE(desktop.runtime().boxes.empty()) << "no report beside the event";
    }
}

TEST_F(PaintPassOrder, AFailureInAHeaderRaisesAnEvent) {
    addColumns({60});
    list.setColumnIcon(1, std::make_shared<BrokenPicture>());
    repaint();
    EXPECT_EQ(events.log.size(), 1U);
}

TEST_F(PaintPassOrder, AFailureInTheRowsIsReportedAndLeavesThePassBusy) {
    addColumns({60});
    addRows(1, u"a");
    list.setItemIcon(1, 1, std::make_shared<BrokenPicture>());
    repaint();
    EXPECT_TRUE(events.log.empty());
    EXPECT_EQ(desktop.runtime().boxes.size(), 1U);
    EXPECT_TRUE(says(inside.painting(), "held=yes"));
}

TEST_F(PaintPassOrder, UnderTheSilentFlagAFailureInTheRowsIsPassedOver) {
    addColumns({60});
    addRows(2, u"a");
    list.letBorderVisible(true);
    list.setItemIcon(1, 1, std::make_shared<BrokenPicture>());
    Error().letSilentError(true);
    repaint();
    EXPECT_TRUE(says(inside.painting(), "held=no"));
    EXPECT_EQ(drawn().lines("Text 'a'").size(), 4U);
    EXPECT_EQ(drawn().lines("Box").size(), 1U);
}

TEST_F(PaintPassOrder, ACoordinateThatIsNoNumberIsAnOrdinaryFailure) {
    addColumns({60});
    addRows(1, u"a");
    for (const Single width :
         {std::numeric_limits<Single>::quiet_NaN(), std::numeric_limits<Single>::infinity()}) {
        inside.columns()[0]->Width = width;
        events.log.clear();
        repaint();
        EXPECT_EQ(events.log, (Lines{"ListViewError eSub=Redraw eNumber=6 eDescription=Overflow"})) << width;
        EXPECT_TRUE(says(inside.painting(), "held=no"));
    }
}

TEST_F(PaintPassOrder, ATopRowPastTheEndIsReported) {
    addColumns({60});
    addRows(1, u"a");
    inside.vertical().letValue(7);
    repaint();
    ASSERT_EQ(desktop.runtime().boxes.size(), 1U);
    EXPECT_NE(toUtf8(desktop.runtime().boxes[0].text).find("Error no.: 9"), std::string::npos);
}

TEST_F(PaintPassOrder, ThePassYieldsOnceAfterItsFlagIsCleared) {
    bool busy = true;
    desktop.onYield([&] { busy = bool(says(inside.painting(), "held=yes")); });
    list.Redraw();
    EXPECT_FALSE(busy);
}

TEST_F(PaintPassOrder, AColumnAsWideAsCanBeIsPaintedInTime) {
    addColumns({10});
    list.letColumnWidth(1, 3e9F);
    addRows(1, u"a");
    mouseAt(5, 5);
    list.letGridLines(true);
    repaint();
    EXPECT_TRUE(desktop.runtime().boxes.empty());
    EXPECT_TRUE(says(inside.painting(), "held=no"));
}

} // namespace lumtex::testing
