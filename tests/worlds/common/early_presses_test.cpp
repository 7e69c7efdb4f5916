#include "worlds/common/early_presses.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace lumtex::testing {
namespace {

using ::testing::ElementsAre;

class EarlyPresses : public ::testing::Test {
  protected:
    std::function<void()> says(const std::string& word) {
        return [this, word] { log.push_back(word); };
    }

    using Noticed = worlds::EarlyPresses::Noticed;

    std::vector<std::string> log;
    Noticed noticed = Noticed::nothing;
    worlds::EarlyPresses presses{[this] { return noticed; }, says("tick")};
};

constexpr WindowHandle list = 1;
constexpr WindowHandle form = 2;

TEST_F(EarlyPresses, AHandsPressIsToldAsItComes) {
    presses.move(list, says("move"));
    presses.press(list, false, [this] {
        presses.other(list, says("release"));
        log.emplace_back("press");
    });
    EXPECT_THAT(log, ElementsAre("move", "release", "press"));
}

TEST_F(EarlyPresses, OneThatCameWithItsMoveComesBehindTheTick) {
    presses.move(list, says("move"));
    noticed = Noticed::soon;
    presses.press(list, true, says("press"));
    EXPECT_THAT(log, ElementsAre("move", "tick", "press"));
}

TEST_F(EarlyPresses, WhatAYieldOfItsMoveLetsThroughWaitsForTheMove) {
    presses.move(list, [this] {
        presses.press(list, false, says("press"));
        presses.other(list, says("release"));
        presses.move(list, says("other move"));
        log.emplace_back("move");
    });
    EXPECT_THAT(log, ElementsAre("move", "tick", "press", "release", "other move"));
}

TEST_F(EarlyPresses, WhereTheMouseIsNoticedAlreadyNothingWaits) {
    noticed = Noticed::already;
    presses.move(list, [this] {
        presses.press(list, false, says("press"));
        log.emplace_back("move");
    });
    EXPECT_THAT(log, ElementsAre("press", "move"));
}

TEST_F(EarlyPresses, WhereItIsNoticedSoonTheTickComesAtOnce) {
    noticed = Noticed::soon;
    presses.move(list, [this] {
        presses.press(list, false, says("press"));
        log.emplace_back("move");
    });
    EXPECT_THAT(log, ElementsAre("tick", "press", "move"));
}

TEST_F(EarlyPresses, ItsReleaseWaitsUntilItHasBeenTold) {
    presses.press(list, true, [this] {
        presses.other(list, says("release"));
        log.emplace_back("press");
    });
    EXPECT_THAT(log, ElementsAre("tick", "press", "release"));
}

TEST_F(EarlyPresses, OtherWindowsHearOfTheMouseMeanwhile) {
    presses.press(list, true, [this] {
        presses.other(list, says("release"));
        presses.move(form, says("move on form"));
        presses.press(form, true, says("press on form"));
        presses.other(form, says("release on form"));
        log.emplace_back("press");
    });
    EXPECT_THAT(log,
                ElementsAre("tick", "move on form", "press on form", "release on form", "press", "release"));
}

TEST_F(EarlyPresses, OfNestedMovesTheOutermostEndsTheWait) {
    presses.move(list, [this] {
        presses.move(list, [this] {
            presses.press(list, false, says("press"));
            log.emplace_back("inner");
        });
        log.emplace_back("outer");
    });
    EXPECT_THAT(log, ElementsAre("inner", "outer", "tick", "press"));
}

TEST_F(EarlyPresses, AFailureEndsNoWait) {
    EXPECT_THROW(presses.press(list, true, [] { throw 1; }), int);
    presses.press(list, false, says("press"));
    EXPECT_THAT(log, ElementsAre("tick", "press"));
}

TEST_F(EarlyPresses, AFailureOfAPressLosesNothingBehindIt) {
    EXPECT_THROW(presses.press(list,
                               true,
                               [this] {
                                   presses.other(list, says("release"));
                                   throw 1;
                               }),
                 int);
    presses.press(list, false, says("press"));
    EXPECT_THAT(log, ElementsAre("tick", "release", "press"));
}

TEST_F(EarlyPresses, AFailureOfAMoveLosesNoPress) {
    EXPECT_THROW(presses.move(list,
                              [this] {
                                  presses.press(list, false, says("press"));
                                  throw 1;
                              }),
                 int);
    presses.move(list, says("move"));
    EXPECT_THAT(log, ElementsAre("tick", "press", "move"));
}

TEST_F(EarlyPresses, AFailureOfATickLosesNoPress) {
    worlds::EarlyPresses failing{[] { return Noticed::soon; }, [] { throw 1; }};
    EXPECT_THROW(failing.press(list, true, says("press")), int);
    EXPECT_THAT(log, ElementsAre("press"));
}

} // namespace
} // namespace lumtex::testing
