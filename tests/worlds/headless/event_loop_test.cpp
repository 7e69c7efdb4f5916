#include "desktop_fixture.h"

namespace lumtex::testing {

using Loop = DesktopFixture;
using Yields = DesktopFixture;
using Paints = DesktopFixture;

TEST_F(Loop, DeliversEventsBeforePaintsBeforeTicks) {
    const auto timer = desktop.createTimer([this] {
        events.record("tick", {{"paints", Long{a->headless().painted()}}});
    });
    timer->letInterval(1);
    timer->letEnabled(true);
    desktop.jump(std::chrono::milliseconds(1));
    a->window().present();
    desktop.post([this] { events.record("event", {{"paints", Long{a->headless().painted()}}}); });
    desktop.run();
    EXPECT_TRUE(sameLog(events.take(), {"event paints=0", "tick paints=1"}));
}

TEST_F(Loop, DeliversWhatEventsPostMeanwhile) {
    desktop.post([this] {
        desktop.post([this] { events.record("second"); });
        events.record("first");
    });
    desktop.run();
    EXPECT_TRUE(sameLog(events.take(), {"first", "second"}));
    EXPECT_TRUE(desktop.idle());
}

TEST_F(Loop, AStormEndsAtTheBoundAndTheRestWaits) {
    int count = 0;
    std::function<void()> storm = [&] {
        ++count;
        desktop.post(storm);
    };
    desktop.post(storm);
    desktop.run();
    EXPECT_EQ(count, headless::EventLoop::longestRun);
    EXPECT_FALSE(desktop.idle());
    storm = [] {};
    desktop.run();
    EXPECT_EQ(count, headless::EventLoop::longestRun + 1);
    EXPECT_TRUE(desktop.idle());
}

TEST_F(Loop, AStormInsideYieldsSharesTheBound) {
    int count = 0;
    std::function<void()> storm = [&] {
        ++count;
        desktop.post(storm);
        desktop.runtime().DoEvents();
    };
    desktop.post(storm);
    desktop.run();
    EXPECT_EQ(count, headless::EventLoop::longestRun);
    storm = [] {};
    desktop.run();
    EXPECT_TRUE(desktop.idle());
}

TEST_F(Loop, AStormDoesNotKeepAnAdvanceFromEnding) {
    std::function<void()> storm = [&] { desktop.post(storm); };
    int ticks = 0;
    const auto timer = desktop.createTimer([&] { ++ticks; });
    timer->letInterval(10);
    timer->letEnabled(true);
    desktop.post(storm);
    desktop.advance(std::chrono::milliseconds(50));
    EXPECT_EQ(ticks, 0);
    EXPECT_EQ(desktop.time(), std::chrono::milliseconds(50));
    storm = [] {};
    desktop.run();
    EXPECT_EQ(ticks, 1);
}

TEST_F(Yields, RunTheLoopInTheMiddleOfAnEvent) {
    events.on("a.MouseDown", [this] {
        desktop.runtime().DoEvents();
        events.record("back");
    });
    desktop.postMove({15, 25});
    desktop.postPress();
    desktop.postRelease();
    desktop.run();
    EXPECT_TRUE(sameLog(events.take(),
                        {"a.MouseMove Button=0 Shift=0 X=5 Y=5",
                         "a.GotFocus",
                         "a.MouseDown Button=1 Shift=0 X=5 Y=5",
                         "  a.MouseUp Button=1 Shift=0 X=5 Y=5",
                         "  a.Click",
                         "  a.MouseMove Button=0 Shift=0 X=5 Y=5",
                         "back"}));
}

TEST_F(Yields, DeliverTicksThatAreDue) {
    const auto timer = desktop.createTimer([this] { events.record("tick"); });
    timer->letInterval(1);
    timer->letEnabled(true);
    desktop.runtime().DoEvents();
    EXPECT_TRUE(sameLog(events.take(), {}));
    desktop.jump(std::chrono::milliseconds(1));
    desktop.runtime().DoEvents();
    EXPECT_TRUE(sameLog(events.take(), {"  tick"}));
}

TEST_F(Yields, HostCodeRunsAtTheNextOnesInTurnBeforeWhatWaits) {
    desktop.onYield([this] { events.record("host1"); }, 2);
    desktop.onYield([this] { events.record("host2"); });
    desktop.post([this] { events.record("event"); });
    for (int i = 0; i < 4; ++i)
        desktop.runtime().DoEvents();
    EXPECT_TRUE(sameLog(events.take(), {"  host1", "  event", "  host1", "  host2"}));
}

TEST_F(Yields, HostCodeThatYieldsIsOneLevelDeeper) {
    desktop.onYield([this] {
        events.record("outer");
        desktop.onYield([this] { events.record("inner"); });
        desktop.runtime().DoEvents();
    });
    desktop.runtime().DoEvents();
    EXPECT_TRUE(sameLog(events.take(), {"  outer", "    inner"}));
    EXPECT_EQ(desktop.yieldDepth(), 0);
}

TEST_F(Yields, HostCodeThatNeverStopsYieldingEndsAtTheBound) {
    int entered = 0;
    desktop.onYield(
        [&] {
            ++entered;
            desktop.runtime().DoEvents();
        },
        1000000);
    desktop.runtime().DoEvents();
    EXPECT_EQ(entered, headless::EventLoop::deepest);
    EXPECT_EQ(desktop.yieldDepth(), 0);
}

TEST_F(Yields, ManyWithNothingWaitingAreNothing) {
    for (int i = 0; i < 2 * headless::EventLoop::longestRun; ++i)
        desktop.runtime().DoEvents();
    desktop.post([this] { events.record("event"); });
    desktop.runtime().DoEvents();
    EXPECT_TRUE(sameLog(events.take(), {"  event"}));
}

TEST_F(Paints, RequestsBeforeTheirPaintShareIt) {
    a->window().present();
    a->window().present();
    EXPECT_EQ(a->headless().presented(), 2);
    EXPECT_EQ(a->headless().painted(), 0);
    EXPECT_FALSE(desktop.idle());
    desktop.run();
    EXPECT_EQ(a->headless().painted(), 1);
    EXPECT_TRUE(desktop.idle());
    a->window().present();
    desktop.runtime().DoEvents();
    EXPECT_EQ(a->headless().painted(), 2);
}

} // namespace lumtex::testing
