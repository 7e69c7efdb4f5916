/// Two threads do their parts and end together, whatever becomes of them.
#include "values/side_by_side.h"

#include <atomic>
#include <stdexcept>
#include <string>
#include <thread>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

TEST(SideBySide, RunsOnePartOnThisThreadAndTheOtherElsewhereMeanwhile) {
    std::thread::id here;
    std::thread::id there;
    std::atomic<bool> otherRuns = false;
    sideBySide(
        [&] {
            here = std::this_thread::get_id();
            // Would never end if the other part ran afterwards.
            otherRuns.wait(false);
        },
        [&] {
            there = std::this_thread::get_id();
            otherRuns = true;
            otherRuns.notify_one();
        });
    EXPECT_EQ(here, std::this_thread::get_id());
    EXPECT_NE(there, here);
}

TEST(SideBySide, ThrowsTheFailureOfEitherPartWhenBothHaveEnded) {
    const auto failing = [] { throw std::runtime_error("here"); };
    bool ended = false;
    const auto thrownBy = [&](const std::function<void()>& here, const std::function<void()>& there) {
        try {
            sideBySide(here, there);
        } catch (const std::exception& caught) {
            return std::string(caught.what());
        }
        return std::string("nothing");
    };
    EXPECT_EQ(thrownBy(failing, [&] { ended = true; }), "here");
    EXPECT_TRUE(ended);
    ended = false;
    EXPECT_EQ(thrownBy([&] { ended = true; }, [] { throw std::length_error("there"); }), "there");
    EXPECT_TRUE(ended);
    EXPECT_EQ(thrownBy(failing, [] { throw std::length_error("there"); }), "here");
    EXPECT_EQ(thrownBy([] {}, [] {}), "nothing");
}

TEST(SideBySide, ShortWalksStayWithOneThread) {
    EXPECT_EQ(handsFor(0), Hands::one);
    EXPECT_EQ(handsFor(1'000), Hands::one);
    EXPECT_EQ(handsFor(1'000'000), std::thread::hardware_concurrency() > 1 ? Hands::two : Hands::one);
}

} // namespace
} // namespace lumtex::testing
