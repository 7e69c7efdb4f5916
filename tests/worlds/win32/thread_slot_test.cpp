#include "values/thread_state.h"
#include "worlds/win32/thread_slot.h"

#include <thread>
#include <utility>

#include <gtest/gtest.h>

namespace lumtex::win32 {
namespace {

class ThreadSlot : public ::testing::Test {
  protected:
    ThreadSlot() { useThreadSlot(); }
};

TEST_F(ThreadSlot, AThreadFindsItsOwnStateAgain) {
    EXPECT_EQ(&ThreadState::ofThread(), &ThreadState::ofThread());
}

TEST_F(ThreadSlot, EachThreadBeginsWithAStateOfItsOwn) {
    ThreadState& mine = ThreadState::ofThread();
    const int reports = std::exchange(mine.runningReports, 7);
    ThreadState* others = nullptr;
    int othersReports = -1;
    std::thread([&] {
        others = &ThreadState::ofThread();
        othersReports = others->runningReports;
    }).join();
    EXPECT_NE(others, &mine);
    EXPECT_EQ(othersReports, 0);
    mine.runningReports = reports;
}

TEST_F(ThreadSlot, AStateOutlivesItsThread) {
    ThreadState* others = nullptr;
    std::thread([&] {
        others = &ThreadState::ofThread();
        others->runningReports = 3;
    }).join();
    std::thread([&] { EXPECT_NE(&ThreadState::ofThread(), others); }).join();
    EXPECT_EQ(others->runningReports, 3);
}

TEST_F(ThreadSlot, TellingTwiceThatItIsUsedChangesNothing) {
    ThreadState* const before = &ThreadState::ofThread();
    useThreadSlot();
    EXPECT_EQ(&ThreadState::ofThread(), before);
}

} // namespace
} // namespace lumtex::win32
