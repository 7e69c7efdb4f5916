#include "values/locale.h"
#include "values/thread_state.h"

#include <thread>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

TEST(ThreadState, IsEachThreadsOwn) {
    const ThreadState before = ThreadState::ofThread();
    std::thread([] {
        const UsingLocale using_(currentLocale());
        ThreadState& state = ThreadState::ofThread();
        EXPECT_EQ(state.innermostLocale, &using_);
        EXPECT_EQ(state.runningReports, 0);
        state.runningReports = 7;
    }).join();
    EXPECT_EQ(ThreadState::ofThread().innermostLocale, before.innermostLocale);
    EXPECT_EQ(ThreadState::ofThread().runningReports, before.runningReports);
}

} // namespace
} // namespace lumtex::testing
