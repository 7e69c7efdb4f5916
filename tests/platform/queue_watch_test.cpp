#include "fake_runtime.h"
#include "platform/queue_watch.h"

#include <gtest/gtest.h>

namespace lumtex {
namespace {

class CountingRuntime final : public FakeRuntime {
  public:
    bool hasPendingEvents() const override {
        ++looks;
        return waits;
    }
    bool waits = false;
    mutable int looks = 0;
};

class QueueWatching : public ::testing::Test {
  protected:
    CountingRuntime runtime;
    QueueWatch watch{runtime};
};

TEST_F(QueueWatching, TheFirstStepLooks) {
    EXPECT_FALSE(watch.eventWaits());
    EXPECT_EQ(runtime.looks, 1);
}

TEST_F(QueueWatching, AQuietQueueIsSeldomLookedAt) {
    for (int step = 0; step < 100000; ++step)
        EXPECT_FALSE(watch.eventWaits());
    EXPECT_GE(runtime.looks, 1);
    EXPECT_LT(runtime.looks, 100000 / 60);
}

TEST_F(QueueWatching, AnEventThatComesFromOutsideIsSeen) {
    EXPECT_FALSE(watch.eventWaits());
    runtime.waits = true;
    while (!watch.eventWaits())
        EXPECT_EQ(runtime.looks, 1);
    EXPECT_EQ(runtime.looks, 2);
}

TEST_F(QueueWatching, WhileSomethingWaitsEachStepLooks) {
    runtime.waits = true;
    for (int step = 1; step <= 5; ++step) {
        EXPECT_TRUE(watch.eventWaits());
        EXPECT_EQ(runtime.looks, step);
    }
}

TEST_F(QueueWatching, AfterHostCodeTheNextStepLooks) {
    EXPECT_FALSE(watch.eventWaits());
    watch.hostRan();
    EXPECT_FALSE(watch.eventWaits());
    EXPECT_EQ(runtime.looks, 2);
}

} // namespace
} // namespace lumtex
