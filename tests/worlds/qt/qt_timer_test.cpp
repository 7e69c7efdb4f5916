#include "world_fixture.h"
#include "worlds/qt/qt_timer.h"

namespace lumtex::testing {

namespace {

class QtTimerTest : public QtWorldTest {
  protected:
    /// Lets events through until `count` ticks have come.
    void await(int count) {
        while (ticks < count)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    int ticks = 0;
};

TEST_F(QtTimerTest, TicksAgainAndAgainWhileItIsOn) {
    const std::unique_ptr<Timer> timer = world.createTimer([&] { ++ticks; });
    timer->letInterval(1);
    EXPECT_FALSE(timer->Enabled());
    QCoreApplication::processEvents();
    EXPECT_EQ(ticks, 0) << "created off";
    timer->letEnabled(true);
    EXPECT_EQ(ticks, 0) << "never inside a call";
    await(3);
    timer->letEnabled(false);
    const int last = ticks;
    int others = 0;
    const std::unique_ptr<Timer> other = world.createTimer([&] { ++others; });
    other->letInterval(1);
    other->letEnabled(true);
    while (others < 3)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(ticks, last);
}

TEST_F(QtTimerTest, WithoutAnIntervalItNeverTicks) {
    const std::unique_ptr<Timer> still = world.createTimer([&] { ticks += 1000; });
    const std::unique_ptr<Timer> other = world.createTimer([&] { ++ticks; });
    still->letInterval(-5);
    EXPECT_EQ(still->Interval(), 0);
    still->letEnabled(true);
    other->letInterval(1);
    other->letEnabled(true);
    await(3);
    EXPECT_LT(ticks, 1000);
}

TEST_F(QtTimerTest, MayGoInItsOwnTick) {
    std::unique_ptr<Timer> timer;
    timer = world.createTimer([&] {
        timer.reset();
        ++ticks;
    });
    timer->letInterval(1);
    timer->letEnabled(true);
    await(1);
    EXPECT_EQ(timer, nullptr);
}

TEST_F(QtTimerTest, TheOwnerOfTheWorldIsHeldDuringATick) {
    auto owner = std::make_shared<int>(0);
    world.owner = owner;
    bool held = false;
    const std::unique_ptr<Timer> timer = world.createTimer([&] {
        owner.reset();
        held = !world.owner.expired() && world.isDelivering();
        ++ticks;
    });
    timer->letInterval(1);
    timer->letEnabled(true);
    await(1);
    EXPECT_TRUE(held);
    EXPECT_TRUE(world.owner.expired());
    EXPECT_FALSE(world.isDelivering());
}

} // namespace
} // namespace lumtex::testing
