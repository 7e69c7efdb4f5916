#include "desktop_fixture.h"

namespace lumtex::testing {

using std::chrono::milliseconds;

class TimerRules : public DesktopFixture {
  protected:
    std::unique_ptr<Timer> timer(const std::string& name, Long interval) {
        auto made = desktop.createTimer([this, name] {
            events.record(name, {{"at", std::to_string(desktop.time().count())}});
        });
        made->letInterval(interval);
        made->letEnabled(true);
        return made;
    }
};

using TimerClockRules = TimerRules;

TEST_F(TimerClockRules, TicksRunInOrderOfTimeThenOfArrival) {
    const auto slow = timer("slow", 10);
    const auto fast = timer("fast", 5);
    desktop.advance(milliseconds(20));
    // At 10 the slow one was started before the fast one started over, and at 20 again.
    EXPECT_TRUE(sameLog(events.take(),
                        {"fast at=5", "slow at=10", "fast at=10", "fast at=15", "slow at=20", "fast at=20"}));
}

TEST_F(TimerClockRules, TheClockNeverMovesByItself) {
    const auto one = timer("one", 1);
    desktop.run();
    desktop.runtime().DoEvents();
    EXPECT_EQ(desktop.time(), milliseconds(0));
    EXPECT_TRUE(sameLog(events.take(), {}));
}

TEST_F(TimerClockRules, AdvancingStopsShortOfTheNextTick) {
    const auto one = timer("one", 350);
    desktop.advance(milliseconds(349));
    EXPECT_TRUE(sameLog(events.take(), {}));
    desktop.advance(milliseconds(1));
    EXPECT_TRUE(sameLog(events.take(), {"one at=350"}));
}

TEST_F(TimerClockRules, AdvancingDeliversWhatWaitsFirst) {
    const auto one = timer("one", 1);
    desktop.post([this] { events.record("event"); });
    desktop.advance(milliseconds(1));
    EXPECT_TRUE(sameLog(events.take(), {"event", "one at=1"}));
}

TEST_F(TimerClockRules, JumpingRunsNothingAndATickIsNotQueuedTwice) {
    const auto one = timer("one", 10);
    desktop.jump(milliseconds(35));
    EXPECT_TRUE(sameLog(events.take(), {}));
    desktop.run();
    EXPECT_TRUE(sameLog(events.take(), {"one at=35"}));
    // The rhythm stays that of the start.
    desktop.advance(milliseconds(5));
    EXPECT_TRUE(sameLog(events.take(), {"one at=40"}));
}

TEST_F(TimerClockRules, NoSpanBelowZeroAndNoEndOfTimeMovesTheClockWrong) {
    desktop.advance(milliseconds(5));
    desktop.advance(milliseconds(-3));
    desktop.jump(milliseconds(-3));
    EXPECT_EQ(desktop.time(), milliseconds(5));
    desktop.jump(milliseconds::max());
    desktop.jump(milliseconds::max());
    EXPECT_GT(desktop.time(), milliseconds(5));
    const auto one = timer("one", 2147483647);
    desktop.jump(milliseconds::max());
    desktop.run();
    EXPECT_TRUE(sameLog(events.take(), {}));
}

TEST_F(TimerRules, StartOffAndWithoutInterval) {
    const auto fresh = desktop.createTimer([] {});
    EXPECT_FALSE(fresh->Enabled());
    EXPECT_EQ(fresh->Interval(), 0);
    EXPECT_EQ(fresh->Tag, u"");
}

TEST_F(TimerRules, AnIntervalOfZeroOrBelowNeverTicks) {
    const auto zero = timer("zero", 0);
    const auto below = timer("below", -7);
    EXPECT_TRUE(zero->Enabled());
    EXPECT_EQ(below->Interval(), 0);
    desktop.advance(milliseconds(1000));
    EXPECT_TRUE(sameLog(events.take(), {}));
}

TEST_F(TimerRules, TurningOnStartsAWholeInterval) {
    const auto one = timer("one", 10);
    desktop.advance(milliseconds(7));
    one->letEnabled(false);
    one->letEnabled(true);
    desktop.advance(milliseconds(9));
    EXPECT_TRUE(sameLog(events.take(), {}));
    desktop.advance(milliseconds(1));
    EXPECT_TRUE(sameLog(events.take(), {"one at=17"}));
}

TEST_F(TimerRules, TurningOnAgainWhileOnChangesNothing) {
    const auto one = timer("one", 10);
    desktop.advance(milliseconds(7));
    one->letEnabled(true);
    desktop.advance(milliseconds(3));
    EXPECT_TRUE(sameLog(events.take(), {"one at=10"}));
}

TEST_F(TimerRules, SettingTheIntervalStartsOver) {
    const auto one = timer("one", 250);
    desktop.advance(milliseconds(249));
    one->letInterval(100);
    desktop.advance(milliseconds(99));
    EXPECT_TRUE(sameLog(events.take(), {}));
    desktop.advance(milliseconds(1));
    EXPECT_TRUE(sameLog(events.take(), {"one at=349"}));
}

TEST_F(TimerRules, ATickMayChangeTheRhythm) {
    const auto one = timer("one", 250);
    events.on("one", [&] { one->letInterval(100); });
    desktop.advance(milliseconds(450));
    EXPECT_TRUE(sameLog(events.take(), {"one at=250", "one at=350", "one at=450"}));
}

TEST_F(TimerRules, TurnedOffWhileATickWaitsItNeverComes) {
    const auto one = timer("one", 1);
    desktop.jump(milliseconds(5));
    one->letEnabled(false);
    desktop.run();
    EXPECT_TRUE(sameLog(events.take(), {}));
}

TEST_F(TimerRules, ATickThatTurnsItsTimerOffIsTheLast) {
    const auto one = timer("one", 1);
    events.on("one", [&] { one->letEnabled(false); });
    desktop.advance(milliseconds(10));
    EXPECT_TRUE(sameLog(events.take(), {"one at=1"}));
}

TEST_F(TimerRules, ATickMayDestroyItsTimerAndTheOneThatIsDueNext) {
    auto one = timer("one", 1);
    auto two = timer("two", 1);
    events.on("one", [&] {
        one.reset();
        two.reset();
    });
    desktop.advance(milliseconds(10));
    EXPECT_TRUE(sameLog(events.take(), {"one at=1"}));
}

TEST_F(TimerRules, ATickMayStartTimersThatTickInTheSameAdvance) {
    std::unique_ptr<Timer> two;
    const auto one = timer("one", 4);
    events.on("one", [&] {
        one->letEnabled(false);
        two = timer("two", 3);
    });
    desktop.advance(milliseconds(8));
    EXPECT_TRUE(sameLog(events.take(), {"one at=4", "two at=7"}));
}

TEST_F(TimerRules, ATickThatYieldsIsNotEnteredAgainByItself) {
    const auto one = timer("one", 1);
    events.on("one", [this] { desktop.runtime().DoEvents(); });
    desktop.jump(milliseconds(5));
    desktop.run();
    EXPECT_TRUE(sameLog(events.take(), {"one at=5"}));
}

TEST_F(TimerRules, ATickMayAdvanceTheClockItself) {
    const auto one = timer("one", 10);
    events.on("one", [this] {
        events.on("one", {});
        desktop.advance(milliseconds(15));
    });
    desktop.advance(milliseconds(30));
    EXPECT_TRUE(sameLog(events.take(), {"one at=10", "one at=20", "one at=30"}));
    EXPECT_EQ(desktop.time(), milliseconds(30));
}

} // namespace lumtex::testing
