/// Drags, arrows and presses in the trough, with the events that come of them.
#include "bar_fixture.h"

namespace lumtex::testing {

using Inside = bars::ScrollInspector;
using namespace std::chrono_literals;

using Drag = BothBars;
INSTANTIATE_TEST_SUITE_P(Axes,
                         Drag,
                         ::testing::Values(bars::Axis::vertical, bars::Axis::horizontal),
                         axisName);

TEST_P(Drag, RaisesScrollWithEachNewValueAndChangeAtItsEnd) {
    pressAt(27);
    EXPECT_TRUE(Inside::dragging(bar()));
    EXPECT_EQ(take(), Lines{});
    moveTo(37);
    EXPECT_EQ(take(), Lines{"Scroll"});
    EXPECT_EQ(bar().Value(), 10);
    EXPECT_EQ(thumbStart(), 27);
    moveTo(37);
    EXPECT_EQ(take(), Lines{}) << "no new value";
    moveTo(30);
    EXPECT_EQ(take(), Lines{"Scroll"});
    EXPECT_EQ(bar().Value(), 3);
    desktop.release();
    EXPECT_EQ(take(), Lines{"Change"});
    EXPECT_FALSE(Inside::dragging(bar()));
}

TEST_P(Drag, WithoutActiveScrollingChangesTheValueAtItsEnd) {
    bar().letActiveScrolling(false);
    pressAt(27);
    EXPECT_EQ(drawnBy(bar().window(), [&] { moveTo(47); }), Lines{}) << "the trough is not repainted";
    EXPECT_EQ(take(), Lines{});
    EXPECT_EQ(bar().Value(), 0);
    EXPECT_EQ(thumbStart(), 37) << "the thumb moves all the same";
    desktop.release();
    EXPECT_EQ(take(), (Lines{"Scroll", "Change"}));
    EXPECT_EQ(bar().Value(), 20);
}

TEST_P(Drag, StopsAtTheButtons) {
    pressAt(27);
    moveTo(300);
    EXPECT_EQ(thumbStart(), 67);
    EXPECT_EQ(bar().Value(), 50);
    moveTo(-200);
    EXPECT_EQ(thumbStart(), 17);
    EXPECT_EQ(bar().Value(), 0);
    EXPECT_EQ(take(), (Lines{"Scroll", "Scroll"}));
}

TEST_P(Drag, StandsStillWhileThePointerIsTooFarAside) {
    struct Row {
        Single crosswise; // pixels of the thumb
        bool follows;
    };
    pressAt(27);
    Single target = 30;
    for (const Row row : {Row{-129, true}, Row{-130, false}, Row{145, true}, Row{146, false}, Row{8, true}}) {
        const Single before = thumbStart();
        target += 3;
        moveTo(target, row.crosswise + 1);
        EXPECT_EQ(thumbStart() != before, row.follows) << row.crosswise;
    }
    EXPECT_EQ(thumbStart(), 35) << "on its return the thumb takes up the pointer again";
}

TEST_P(Drag, WithAnotherButtonMovesNothing) {
    moveTo(27);
    desktop.press(rightButton);
    moveTo(47);
    EXPECT_EQ(thumbStart(), 17);
    desktop.release(rightButton);
    EXPECT_EQ(take(), Lines{"Change"});
}

TEST_P(Drag, KeepsTheThumbWhereItIsWhenTheValueIsSetMeanwhile) {
    pressAt(27);
    bar().letValue(40);
    EXPECT_EQ(thumbStart(), 17);
    desktop.release();
    EXPECT_EQ(take(), (Lines{"Scroll", "Change"})) << "the thumb's place wins";
    EXPECT_EQ(bar().Value(), 0);
}

TEST_P(Drag, RoundsToTheNearestValue) {
    bar().letMax(20);
    setLength(144);
    EXPECT_DOUBLE_EQ(Inside::imx(bar()), 1.5);
    pressAt(27);
    moveTo(32);
    EXPECT_EQ(bar().Value(), 3) << "5 pixels are 3.33 units";
    moveTo(30);
    EXPECT_EQ(bar().Value(), 2);
    desktop.release();
    EXPECT_EQ(thumbStart(), 20) << "placed by its value";
}

using Arrows = BothBars;
INSTANTIATE_TEST_SUITE_P(Axes,
                         Arrows,
                         ::testing::Values(bars::Axis::vertical, bars::Axis::horizontal),
                         axisName);

// Wanted: an arrow raises Change at the end of the range too, when nothing has moved.
TEST_P(Arrows, StepAndRaiseChangeAlsoAtTheEnd) {
    struct Row {
        const char* rule;
        Long value;
        Single lengthwise;
        Long vertical;
        Long horizontal;
    };
    const Row rows[] = {
        {"down", 10, 125, 14, 11},
        {"up", 10, 8, 6, 9},
        {"down, less than a jump away", 48, 125, 50, 49},
        {"up, less than a jump away", 2, 8, 0, 1},
        {"down at the end", 50, 125, 50, 50},
        {"up at the start", 0, 8, 0, 0},
        {"down, beyond the end", 70, 125, 50, 70},
        {"up, before the start", -10, 8, 0, -10},
    };
    for (const Row& row : rows) {
        bar().letValue(row.value);
        moveTo(row.lengthwise);
        desktop.click();
        EXPECT_EQ(take(), Lines{"Change"}) << row.rule;
        EXPECT_EQ(bar().Value(), isVertical() ? row.vertical : row.horizontal) << row.rule;
    }
}

TEST(VerticalArrows, JumpAsFarAsTheyAreTold) {
    OneBar one(bars::Axis::vertical);
    one.vertical().letScrollButtonJumpLines(7);
    one.pressAt(125);
    EXPECT_EQ(one.bar().Value(), 7);
    one.desktop.release();
    one.vertical().letScrollButtonJumpLines(std::numeric_limits<Long>::max());
    one.pressAt(125);
    EXPECT_EQ(one.bar().Value(), 50);
    one.desktop.release();
    one.bar().letMin(-100);
    one.pressAt(8);
    EXPECT_EQ(one.bar().Value(), -100);
    EXPECT_EQ(one.boxes(), 0U);
}

TEST_P(Arrows, HeldRepeatAtOnceAfter350AndThenEvery100Milliseconds) {
    pressAt(125);
    EXPECT_EQ(take().size(), 1U);
    desktop.advance(349ms);
    EXPECT_EQ(take().size(), 0U);
    desktop.advance(1ms);
    EXPECT_EQ(take().size(), 1U);
    desktop.advance(99ms);
    EXPECT_EQ(take().size(), 0U);
    desktop.advance(1ms);
    EXPECT_EQ(take().size(), 1U);
    desktop.advance(1000ms);
    EXPECT_EQ(take().size(), 10U);
    desktop.release();
    desktop.advance(1000ms);
    EXPECT_EQ(take().size(), 0U);
}

TEST_P(Arrows, HeldAtTheEndOfTheRangeGoOnRaisingTheEvent) {
    bar().letValue(50);
    pressAt(125);
    desktop.advance(550ms);
    EXPECT_EQ(take(), (Lines{"Change", "Change", "Change", "Change"}));
    EXPECT_EQ(bar().Value(), 50);
}

using Trough = BothBars;
INSTANTIATE_TEST_SUITE_P(Axes,
                         Trough,
                         ::testing::Values(bars::Axis::vertical, bars::Axis::horizontal),
                         axisName);

TEST_P(Trough, APressStepsAtOnceAndRepeatsAtTheButtonsRhythm) {
    pressAt(100);
    EXPECT_EQ(take(), Lines{"Change"});
    const Long step = isVertical() ? 4 : 1;
    EXPECT_EQ(bar().Value(), step);
    EXPECT_TRUE(Inside::pressActive(bar()));
    desktop.advance(349ms);
    EXPECT_EQ(bar().Value(), step);
    desktop.advance(1ms);
    EXPECT_EQ(bar().Value(), 2 * step);
    desktop.advance(200ms);
    EXPECT_EQ(bar().Value(), 4 * step);
    EXPECT_EQ(take().size(), 3U);
}

TEST_P(Trough, TheSidesHaveTheirCodes) {
    pressAt(100);
    EXPECT_EQ(Inside::pressDir(bar()), isVertical() ? 2 : 1);
    desktop.release();
    EXPECT_EQ(Inside::pressDir(bar()), 0);
    bar().letValue(50);
    pressAt(20);
    EXPECT_EQ(Inside::pressDir(bar()), isVertical() ? 1 : 2);
    EXPECT_EQ(bar().Value(), isVertical() ? 46 : 49);
}

/// The thumb's place is looked at before a new value moves it, so that one step follows the arrival.
TEST_P(Trough, SteppingEndsWhenTheThumbHasReachedThePointer) {
    struct Row {
        Long value;
        Single press;
        Long vertical; // where it ends
        Long horizontal;
    };
    // The far edge lies at 67 + value, the near one at 17 + value.
    for (const Row row : {Row{0, 100, 40, 34}, Row{50, 40, 18, 22}}) {
        bar().letValue(row.value);
        pressAt(row.press);
        desktop.advance(5000ms);
        EXPECT_EQ(bar().Value(), isVertical() ? row.vertical : row.horizontal);
        EXPECT_FALSE(Inside::pressActive(bar())) << "though the button is still held";
        EXPECT_FALSE(Inside::down(low()) || Inside::down(high()));
        const auto steps =
            static_cast<std::size_t>(std::abs(bar().Value() - row.value) / (isVertical() ? 4 : 1));
        EXPECT_EQ(take(), Lines(steps, "Change"));
        desktop.release();
    }
}

TEST_P(Trough, AReleaseBeforeTheThumbArrivesStopsAtOnce) {
    const auto stretches = [&](const std::function<void()>& action) {
        const Lines lines = drawnBy(bar().window(), action);
        return std::count_if(lines.begin(), lines.end(), [](const std::string& line) {
            return line.rfind("Stretch", 0) == 0;
        });
    };
    moveTo(100);
    EXPECT_EQ(stretches([&] { desktop.press(); }), 1 + 2) << "the step, then the held press";
    take();
    EXPECT_EQ(stretches([&] { desktop.release(); }), 1) << "the darker stretch has gone";
    const Long value = bar().Value();
    desktop.advance(5000ms);
    EXPECT_EQ(take(), Lines{});
    EXPECT_EQ(bar().Value(), value);
}

TEST_P(Trough, TheHeldStretchReachesFromTheThumbToTheEnd) {
    const auto last = [&](const std::function<void()>& action) {
        return drawnBy(bar().window(), action).back();
    };
    moveTo(100);
    const std::string high = last([&] { desktop.press(); });
    EXPECT_EQ(high, isVertical() ? "Stretch 0,71 17x63 from 17x1" : "Stretch 68,0 66x17 from 4x17");
    desktop.release();
    bar().letValue(50);
    moveTo(20);
    const std::string low = last([&] { desktop.press(); });
    EXPECT_EQ(low, isVertical() ? "Stretch 0,17 17x46 from 17x1" : "Stretch 17,0 49x17 from 4x17");
}

TEST_P(Trough, APressExactlyAtTheThumbsEdgeStartsNothing) {
    bar().letValue(10);
    for (const Single edge : {27.0F, 77.0F}) {
        // Beside the thumb's window, so that the bar gets the press: its first column or row.
        const Point at = isVertical() ? desktop.onDesktop(bar().window(), 0, edge)
                                      : desktop.onDesktop(bar().window(), edge, 0);
        desktop.move(at);
        const Lines lines = drawnBy(bar().window(), [&] { desktop.press(); });
        EXPECT_FALSE(Inside::pressActive(bar()));
        EXPECT_EQ(Inside::pressDir(bar()), 0);
        EXPECT_EQ(lines.size(), 2U) << "a repaint, and nothing else";
        desktop.release();
    }
    EXPECT_EQ(take(), Lines{});
    EXPECT_EQ(bar().Value(), 10);
}

// Wanted: the thumb's place is read anew, so that a step past the pointer begins one back as well.
TEST_P(Trough, AStepPastThePointerIsTakenBack) {
    Single press = 0;
    if (isVertical()) {
        bar().letMax(92);
        vertical().letScrollButtonJumpLines(20);
        press = 30; // the thumb's 8 pixels end at 25, and after the step begin at 37
    } else {
        bar().letMax(2);
        setLength(334);
        press = 116; // the thumb ends at 115, and after the step begins at 118
    }
    pressAt(press);
    EXPECT_EQ(take(), (Lines{"Change", "Change"}));
    EXPECT_EQ(bar().Value(), 0);
    EXPECT_FALSE(Inside::pressActive(bar()));
    EXPECT_FALSE(Inside::down(low()) || Inside::down(high()));
}

// Wanted: the pointer's last place over the button counts, also while it is over the trough.
TEST_P(Trough, APlaceLeftOutsideByAnEarlierMovePausesTheRepeat) {
    moveTo(125);
    moveTo(200, 60); // told to the button, which held the mouse
    pressAt(100);
    EXPECT_EQ(take(), Lines{"Change"});
    desktop.advance(3000ms);
    EXPECT_EQ(take(), Lines{});
    EXPECT_TRUE(Inside::pressActive(bar()));
}

// Wanted: a release leaves the hover look as it is, also one that the trough made.
TEST_P(Trough, AfterAHeldPressTheArrowLooksHoveredUntilThePointerVisitsIt) {
    pressAt(100);
    EXPECT_FALSE(Inside::over(high()));
    desktop.advance(350ms);
    EXPECT_TRUE(Inside::over(high())) << "the place it knows is its own corner";
    desktop.release();
    EXPECT_TRUE(Inside::over(high()));
    moveTo(125);
    moveTo(200, 60);
    EXPECT_FALSE(Inside::over(high()));
}

} // namespace lumtex::testing
