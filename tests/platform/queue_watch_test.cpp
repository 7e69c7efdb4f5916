#include "platform/queue_watch.h"

#include <gtest/gtest.h>

namespace lumtex {
namespace {

class CountingQueue final : public EventQueue {
  public:
    void DoEvents() override {}
    void messageBox(StringView /*text*/, BoxStyle /*style*/, StringView /*title*/) override {}
    bool hasPendingEvents() const override {
        ++looks;
        return waits;
    }
    bool waits = false;
    mutable int looks = 0;
};

class QueueWatching : public ::testing::Test {
  protected:
    CountingQueue queue;
    QueueWatch watch{queue};
};

TEST_F(QueueWatching, TheFirstStepLooks) {
    EXPECT_FALSE(watch.eventWaits());
    EXPECT_EQ(queue.looks, 1);
}

TEST_F(QueueWatching, AQuietQueueIsSeldomLookedAt) {
    for (int step = 0; step < 100000; ++step)
        EXPECT_FALSE(watch.eventWaits());
    EXPECT_GE(queue.looks, 1);
    EXPECT_LT(queue.looks, 100000 / 60);
}

TEST_F(QueueWatching, AnEventThatComesFromOutsideIsSeen) {
    EXPECT_FALSE(watch.eventWaits());
    queue.waits = true;
    while (!watch.eventWaits())
        EXPECT_EQ(queue.looks, 1);
    EXPECT_EQ(queue.looks, 2);
}

TEST_F(QueueWatching, WhileSomethingWaitsEachStepLooks) {
    queue.waits = true;
    for (int step = 1; step <= 5; ++step) {
        EXPECT_TRUE(watch.eventWaits());
        EXPECT_EQ(queue.looks, step);
    }
}

TEST_F(QueueWatching, AfterHostCodeTheNextStepLooks) {
    EXPECT_FALSE(watch.eventWaits());
    watch.hostRan();
    EXPECT_FALSE(watch.eventWaits());
    EXPECT_EQ(queue.looks, 2);
}

} // namespace
} // namespace lumtex
