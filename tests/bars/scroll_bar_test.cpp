/// Range, thumb and settings of a bar.
#include "bar_fixture.h"

namespace lumtex::testing {

using Inside = bars::ScrollInspector;
using BarRange = BothBars;
INSTANTIATE_TEST_SUITE_P(Axes,
                         BarRange,
                         ::testing::Values(bars::Axis::vertical, bars::Axis::horizontal),
                         axisName);

TEST_P(BarRange, AMinAboveMaxIsRefusedWithAMessage) {
    bar().letMin(51);
    EXPECT_EQ(bar().Min(), 0);
    ASSERT_EQ(boxes(), 1U);
    EXPECT_EQ(desktop.runtime().boxes[0].text, u"Min darf nicht größer sein als Max!");
    EXPECT_EQ(desktop.runtime().boxes[0].style, BoxStyle::critical);
    EXPECT_EQ(desktop.runtime().boxes[0].title, u"");
    EXPECT_TRUE(told.empty());
    bar().letMin(50);
    EXPECT_EQ(bar().Min(), 50);
    EXPECT_EQ(boxes(), 1U);
}

TEST_P(BarRange, AMaxBelowMinIsRefusedWithAMessage) {
    bar().letMin(10);
    bar().letMax(9);
    EXPECT_EQ(bar().Max(), 50);
    ASSERT_EQ(boxes(), 1U);
    EXPECT_EQ(desktop.runtime().boxes[0].text, u"Max darf nicht kleiner sein als Min!");
    EXPECT_EQ(desktop.runtime().boxes[0].style, BoxStyle::critical);
    EXPECT_EQ(desktop.runtime().boxes[0].title, u"");
    bar().letMax(10);
    EXPECT_EQ(bar().Max(), 10);
}

TEST_P(BarRange, ANewRangeLeavesTheValueOutside) {
    bar().letValue(40);
    bar().letMax(30);
    EXPECT_EQ(bar().Value(), 40);
    bar().letValue(-5);
    EXPECT_EQ(bar().Value(), -5);
    EXPECT_TRUE(log.empty());
}

// Wanted: one pixel less for each unit of `Max`, whatever `Min` and the length of the page.
TEST_P(BarRange, TheThumbLosesAPixelForEachUnitOfMax) {
    struct Row {
        Long max;
        Single length;
    };
    for (const Row row : {Row{0, 100}, Row{1, 99}, Row{50, 50}, Row{91, 9}, Row{92, 8}, Row{93, 8}}) {
        bar().letMax(row.max);
        EXPECT_EQ(thumbLength(), row.length) << row.max;
    }
    bar().letMax(50);
    bar().letMin(40);
    EXPECT_EQ(thumbLength(), 50);
}

TEST_P(BarRange, AResizeAloneLeavesTheThumbsLength) {
    setLength(234);
    EXPECT_EQ(thumbLength(), 50);
    bar().letVisible(false);
    bar().letVisible(true);
    EXPECT_EQ(thumbLength(), 150) << "a showing measures it anew";
}

TEST_P(BarRange, MaxEqualToMinMakesAUnitTheWholeTrack) {
    bar().letMax(0);
    setLength(144);
    EXPECT_EQ(Inside::imx(bar()), 10) << "the thumb is 100 long";
    bar().letMin(0);
    EXPECT_EQ(thumbStart(), 17) << "the value is Min";
}

TEST_P(BarRange, ATrackOfNothingCountsAPixelForAUnit) {
    bar().letMin(-5);
    bar().letMax(0);
    EXPECT_EQ(thumbLength(), 100);
    EXPECT_EQ(Inside::imx(bar()), 1);
    Inside::takeValueFromThumb(bar());
    EXPECT_EQ(bar().Value(), -5);
    EXPECT_EQ(boxes(), 0U);
}

TEST_P(BarRange, ALargeMaxMakesTheShortestThumbAndLessThanAPixelForAUnit) {
    bar().letMax(920);
    EXPECT_EQ(thumbLength(), 8);
    EXPECT_DOUBLE_EQ(Inside::imx(bar()), 0.1);
    bar().letValue(460);
    EXPECT_EQ(thumbStart(), 63);
    bar().letValue(920);
    EXPECT_EQ(thumbStart(), 109) << "it touches the button";
}

TEST_P(BarRange, AValueOutsideTakesTheThumbOutOfTheTrack) {
    bar().letValue(70);
    EXPECT_EQ(bar().Value(), 70);
    EXPECT_EQ(thumbStart(), 87);
    bar().letValue(-10);
    EXPECT_EQ(thumbStart(), 7);
}

TEST_P(BarRange, NumbersAtTheEndsOfTheirTypeDoNoHarm) {
    constexpr Long least = std::numeric_limits<Long>::min();
    constexpr Long most = std::numeric_limits<Long>::max();
    bar().letMax(most);
    bar().letMin(-most);
    bar().letValue(most);
    EXPECT_EQ(thumbStart(), 109);
    bar().letValue(least);
    Inside::takeValueFromThumb(bar());
    EXPECT_EQ(bar().Value(), -most);
    EXPECT_EQ(boxes(), 0U);
}

TEST_P(BarRange, ABarTooShortHidesItsThumbAndItsArrowsGoOn) {
    setLength(46);
    EXPECT_TRUE(thumb().window().Visible()) << "two buttons and 12";
    setLength(45);
    EXPECT_FALSE(thumb().window().Visible());
    pressAt(40);
    EXPECT_EQ(take(), Lines{"Change"});
    EXPECT_EQ(bar().Value(), isVertical() ? 4 : 1);
}

TEST_P(BarRange, ADisabledBarHidesItsThumbAndIsFlatAndWhite) {
    for (const Long style : {0, 1, 2}) {
        bar().letColorStyle(style);
        bar().letEnabled(true);
        EXPECT_TRUE(thumb().window().Visible());
        const Lines lines = drawnBy(bar().window(), [&] { bar().letEnabled(false); });
        EXPECT_EQ(lines, (Lines{"Cls", "BackColor FFFFFF"})) << style;
        EXPECT_FALSE(thumb().window().Visible());
        EXPECT_FALSE(static_cast<RecordingWindow&>(bar().window()).inner().Enabled());
        EXPECT_FALSE(low().En() || high().En() || thumb().En());
    }
}

// Wanted: the length alone decides, so that a disabled thumb can come back.
TEST_P(BarRange, AResizeShowsTheThumbOfADisabledBar) {
    bar().letEnabled(false);
    setLength(135);
    EXPECT_TRUE(thumb().window().Visible());
}

// Wanted: an enabled thumb shows also on a bar too short for it, until the next resize.
TEST_P(BarRange, EnablingShowsTheThumbOfABarTooShort) {
    setLength(45);
    bar().letEnabled(true);
    EXPECT_TRUE(thumb().window().Visible());
    setLength(44);
    EXPECT_FALSE(thumb().window().Visible());
}

TEST_P(BarRange, TheBreadthIsThatOfAButton) {
    bar().letWidth(isVertical() ? 50 : 134);
    bar().letHeight(isVertical() ? 134 : 50);
    EXPECT_EQ(along.breadth(bar().window()), 17);
    EXPECT_EQ(along.start(low().window()), 0);
    EXPECT_EQ(along.start(high().window()), 117);
    EXPECT_EQ(along.breadth(thumb().window()), 16);
    EXPECT_EQ(isVertical() ? thumb().window().Left() : thumb().window().Top(), 1);
}

TEST_P(BarRange, ATroughIsAGradientAcrossTheBar) {
    bar().letColorStyle(0);
    const Lines gradient = drawnBy(bar().window(), [&] { bar().letValue(0); });
    EXPECT_EQ(gradient,
              (Lines{"Cls", isVertical() ? "Stretch 0,0 17x134 from 17x1" : "Stretch 0,0 134x17 from 4x17"}));
    bar().letGradient(false);
    EXPECT_EQ(drawnBy(bar().window(), [&] { bar().letValue(0); }), (Lines{"Cls", "BackColor FFFFFF"}));
    bar().letColorStyle(99);
    bar().letBackColor(0x112233);
    EXPECT_EQ(drawnBy(bar().window(), [&] { bar().letValue(0); }), (Lines{"Cls", "BackColor 112233"}));
}

/// What each setter does beyond storing.
TEST_P(BarRange, EachSetterTellsItsNameAndRepaintsAsItShould) {
    struct Row {
        const char* name;
        std::function<void()> set;
        bool repaints;
    };
    std::vector<Row> rows{
        {"Min", [&] { bar().letMin(1); }, true},
        {"Max", [&] { bar().letMax(60); }, true},
        {"Value", [&] { bar().letValue(7); }, true},
        {"Gradient", [&] { bar().letGradient(false); }, true},
        {"BackColor", [&] { bar().letBackColor(0x123456); }, true},
        {"ColorStyle", [&] { bar().letColorStyle(2); }, true},
        {"ActiveScrolling", [&] { bar().letActiveScrolling(false); }, true},
        {"SmallChange", [&] { bar().letSmallChange(3); }, false},
        {"LargeChange", [&] { bar().letLargeChange(9); }, false},
        {"Enabled", [&] { bar().letEnabled(false); }, true},
    };
    if (isVertical())
        rows.push_back({"ScrollButtonJumpLines", [&] { vertical().letScrollButtonJumpLines(5); }, false});
    for (const Row& row : rows) {
        told.clear();
        const Lines lines = drawnBy(bar().window(), row.set);
        EXPECT_EQ(told, Lines{row.name});
        EXPECT_EQ(!lines.empty(), row.repaints) << row.name;
    }
    EXPECT_TRUE(log.empty()) << "no setter raises an event";
}

TEST_P(BarRange, AStyleReachesThumbAndButtons) {
    bar().letColorStyle(2);
    EXPECT_EQ(thumb().C(), 2);
    EXPECT_EQ(low().C(), 2);
    EXPECT_EQ(high().C(), 2);
}

TEST_P(BarRange, AStyleWithoutPicturesIsReportedAndTheBarGoesOn) {
    const std::size_t before = boxes();
    bar().letColorStyle(7);
    EXPECT_GT(boxes(), before);
    bar().letColorStyle(1);
    const std::size_t after = boxes();
    bar().letValue(10);
    moveTo(8);
    EXPECT_EQ(boxes(), after);
}

} // namespace lumtex::testing
