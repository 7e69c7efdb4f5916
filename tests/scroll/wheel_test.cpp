/// The wheel: what is taken, in which unit, and what it does to the list.
#include "bars/wheel.h"
#include "list_fixture.h"
#include "log_comparison.h"

namespace lumtex::testing {

class WheelReceiver : public ::testing::Test {
  protected:
    bool turn(Long delta, WindowHandle window = 7) { return wheel.WndProc(window, delta, 3, 40, 50); }
    Lines take() { return std::exchange(log, {}); }

    headless::Desktop desktop{testFonts()};
    Lines log;
    bars::Wheel wheel{desktop.runtime(), [this](Integer& Rotation, Integer& Keys, Single& X, Single& Y) {
                          log.push_back(std::to_string(Rotation) + " " + std::to_string(Keys) + " " +
                                        std::to_string(static_cast<int>(X)) + "," +
                                        std::to_string(static_cast<int>(Y)));
                      }};
};

TEST_F(WheelReceiver, TakesTheMessagesOfItsWindowAloneOnceEnabled) {
    EXPECT_FALSE(turn(120));
    wheel.EnableWheel(7);
    EXPECT_TRUE(turn(120));
    EXPECT_FALSE(turn(120, 8));
    EXPECT_EQ(take(), Lines{"1 3 40,50"});
    wheel.DisableWheel();
    EXPECT_FALSE(turn(120));
    EXPECT_EQ(take(), Lines{});
}

TEST_F(WheelReceiver, IsNotEnabledWithoutAWindow) {
    wheel.EnableWheel(0);
    EXPECT_FALSE(turn(120, 0));
    wheel.EnableWheel(1);
    EXPECT_TRUE(turn(120, 1)) << "any other number is a window";
}

TEST_F(WheelReceiver, EnabledTwiceStaysWithItsFirstWindow) {
    wheel.EnableWheel(7);
    wheel.EnableWheel(8);
    EXPECT_TRUE(turn(120, 7));
    EXPECT_FALSE(turn(120, 8));
}

TEST_F(WheelReceiver, DisabledWithoutHavingBeenEnabledDoesNothing) {
    wheel.DisableWheel();
    wheel.EnableWheel(7);
    EXPECT_TRUE(turn(120));
}

// Wanted: less than half a notch is a turn by 0, and half a notch rounds to the even number.
TEST_F(WheelReceiver, CountsInNotchesRoundedToEven) {
    struct Row {
        Long delta;
        int rotation;
    };
    wheel.EnableWheel(7);
    for (const Row row : {Row{120, 1},
                          Row{-120, -1},
                          Row{360, 3},
                          Row{59, 0},
                          Row{60, 0},
                          Row{61, 1},
                          Row{-60, 0},
                          Row{-61, -1},
                          Row{180, 2},
                          Row{300, 2},
                          Row{-180, -2},
                          Row{0, 0}}) {
        turn(row.delta);
        EXPECT_EQ(take(), Lines{std::to_string(row.rotation) + " 3 40,50"}) << row.delta;
    }
}

TEST_F(WheelReceiver, ReportsATurnThatNoNumberOfNotchesHolds) {
    wheel.EnableWheel(7);
    EXPECT_TRUE(turn(120 * 32768)) << "swallowed all the same";
    EXPECT_EQ(take(), Lines{});
    ASSERT_EQ(desktop.runtime().boxes.size(), 1U);
    EXPECT_NE(desktop.runtime().boxes[0].text.find(u"WheelProc"), String::npos);
    EXPECT_NE(desktop.runtime().boxes[0].text.find(u"basWheel"), String::npos);
}

/// A list in run mode, as it comes from saved settings, under the pointer.
class WheelOnList : public ListFixture {
  protected:
    WheelOnList() {
        list.UserControl_ReadProperties(MemoryPropertyBag());
        addColumns({100});
        list.letWheelScrollLines(3);
        desktop.move(list.window(), 50, 100);
    }

    void wheel(Long notches) {
        events.log.clear();
        desktop.wheel(notches * 120);
    }
};

TEST_F(WheelOnList, OverAnEmptyListDoesNothingAtAll) {
    EXPECT_EQ(paintsOf([&] { wheel(-1); }), 0);
    EXPECT_EQ(events.log, Lines{});
    list.ColumnsClear();
    EXPECT_EQ(paintsOf([&] { wheel(-1); }), 0);
    EXPECT_EQ(events.log, Lines{});
}

TEST_F(WheelOnList, ScrollsDownByItsLinesWhateverTheSizeOfTheTurn) {
    addRows(40);
    EXPECT_EQ(paintsOf([&] { wheel(-1); }), 1);
    EXPECT_EQ(list.TopIndex(), 3);
    EXPECT_EQ(events.log, Lines{"Scroll"});
    wheel(-5);
    EXPECT_EQ(list.TopIndex(), 6);
    EXPECT_EQ(events.log, Lines{"Scroll"});
}

TEST_F(WheelOnList, ScrollsUpByItsLinesAndEndsAtTheTop) {
    addRows(40);
    list.letTopIndex(8);
    wheel(1);
    EXPECT_EQ(list.TopIndex(), 5);
    EXPECT_EQ(events.log, Lines{"Scroll"});
    wheel(4);
    EXPECT_EQ(list.TopIndex(), 2);
    wheel(1);
    EXPECT_EQ(list.TopIndex(), 0);
    wheel(1);
    EXPECT_EQ(list.TopIndex(), 0);
    EXPECT_EQ(events.log, Lines{"Scroll"});
}

TEST_F(WheelOnList, StopsAtTheSecondRowWhereItsLinesLeadThere) {
    addRows(40);
    list.letTopIndex(4);
    wheel(1);
    EXPECT_EQ(list.TopIndex(), 1);
    list.letTopIndex(3);
    wheel(1);
    EXPECT_EQ(list.TopIndex(), 0);
}

TEST_F(WheelOnList, StopsAtTheEndOfTheRange) {
    addRows(40);
    list.letTopIndex(35);
    wheel(-1);
    EXPECT_EQ(list.TopIndex(), 38);
    wheel(-1);
    EXPECT_EQ(list.TopIndex(), 39);
    EXPECT_EQ(inside.vertical().Max(), 39);
}

// Wanted: the size of a turn does not matter, and a turn by 0 goes to the end of the range, as does a turn
// down with a hidden bar.
TEST_F(WheelOnList, ATurnOfLessThanHalfANotchGoesToTheEnd) {
    addRows(40);
    events.log.clear();
    desktop.wheel(30);
    EXPECT_EQ(list.TopIndex(), 39);
    EXPECT_EQ(events.log, Lines{"Scroll"});
}

TEST_F(WheelOnList, WithAHiddenBarStaysAndRaisesScrollAllTheSame) {
    addRows(1);
    EXPECT_FALSE(inside.vertical().Visible());
    EXPECT_EQ(paintsOf([&] { wheel(-1); }), 1);
    EXPECT_EQ(inside.vertical().Value(), 0);
    EXPECT_EQ(events.log, Lines{"Scroll"});
    wheel(1);
    EXPECT_EQ(events.log, Lines{"Scroll"});
}

TEST_F(WheelOnList, TakesLinesOfAnySize) {
    addRows(40);
    list.letTopIndex(5);
    list.letWheelScrollLines(std::numeric_limits<Long>::max());
    wheel(-1);
    EXPECT_EQ(list.TopIndex(), 39);
    wheel(1);
    EXPECT_EQ(list.TopIndex(), 0);
    list.letTopIndex(5);
    list.letWheelScrollLines(-2);
    wheel(-1);
    EXPECT_EQ(list.TopIndex(), 3);
    EXPECT_EQ(reportCount(), 0U);
}

class WheelOnIndex : public WheelOnList {
  protected:
    WheelOnIndex() {
        list.letWheelFunction(cWheelListIndex);
        addRows(10);
    }
    void disable(std::initializer_list<Long> rows) {
        for (const Long row : rows)
            list.letRowEnabled(row + 1, false);
    }
};

TEST_F(WheelOnIndex, MovesOneEnabledRowDown) {
    list.letListIndex(2);
    disable({3, 4});
    wheel(-1);
    EXPECT_EQ(list.ListIndex(), 5);
    EXPECT_EQ(events.log, Lines{});
    wheel(-3);
    EXPECT_EQ(list.ListIndex(), 6) << "whatever the size of the turn";
}

TEST_F(WheelOnIndex, MovesOneEnabledRowUp) {
    list.letListIndex(6);
    disable({5, 4});
    wheel(1);
    EXPECT_EQ(list.ListIndex(), 3);
    EXPECT_EQ(events.log, Lines{});
}

TEST_F(WheelOnIndex, OnTheLastRowStaysThere) {
    list.letListIndex(9);
    wheel(-1);
    EXPECT_EQ(list.ListIndex(), 9);
}

TEST_F(WheelOnIndex, ATurnThatReachesTheLastRowGoesThere) {
    list.letListIndex(4);
    wheel(-5);
    EXPECT_EQ(list.ListIndex(), 9);
    list.letListIndex(4);
    wheel(-4);
    EXPECT_EQ(list.ListIndex(), 5);
    list.letListIndex(0);
    desktop.wheel(0);
    EXPECT_EQ(list.ListIndex(), 9) << "a turn by 0";
}

// Wanted: the turn is added, so that only row 0 or no row at all takes the short way.
TEST_F(WheelOnIndex, ABigTurnNearTheTopGoesOneRowAtATime) {
    list.letListIndex(2);
    wheel(9);
    EXPECT_EQ(list.ListIndex(), 1);
    wheel(9);
    EXPECT_EQ(list.ListIndex(), 0);
    wheel(1);
    EXPECT_EQ(list.ListIndex(), 0);
    list.letListIndex(-1);
    wheel(1);
    EXPECT_EQ(list.ListIndex(), 0);
}

TEST_F(WheelOnIndex, WithAllRowsBelowDisabledStays) {
    list.letListIndex(5);
    disable({6, 7, 8, 9});
    wheel(-1);
    EXPECT_EQ(list.ListIndex(), 5);
    EXPECT_EQ(events.log, Lines{});
    list.letListIndex(5);
    wheel(-4);
    EXPECT_EQ(list.ListIndex(), 5);
    EXPECT_EQ(events.log, Lines{"ErrorWrongIndex Index=9"}) << "the short way meets a disabled row";
}

TEST_F(WheelOnIndex, TheHostHasItsTurnAtTheLastDisabledRowToo) {
    disable({6, 7, 8, 9});
    // Three yields of reading the index, one for each disabled row, then those of the end.
    for (int turn = 1; turn <= 8; ++turn) {
        list.letListIndex(5);
        desktop.onYield([] {}, turn - 1);
        desktop.onYield([&] { list.RowsAdd(); });
        wheel(-1);
        EXPECT_EQ(list.ListIndex(), turn <= 7 ? 10 : 5) << turn;
        list.RowsRemove(11);
    }
}

TEST_F(WheelOnIndex, WithAllRowsAboveDisabledStays) {
    list.letListIndex(5);
    disable({0, 1, 2, 3, 4});
    wheel(1);
    EXPECT_EQ(list.ListIndex(), 5);
    EXPECT_EQ(events.log, Lines{});
}

TEST_F(WheelOnIndex, ScrollsUpToTheRowThatItReached) {
    list.letListIndex(5);
    list.letTopIndex(7);
    wheel(1);
    EXPECT_EQ(list.ListIndex(), 4);
    EXPECT_EQ(list.TopIndex(), 4);
    EXPECT_EQ(events.log, Lines{"Scroll"});
}

TEST_F(WheelOnIndex, AStaleIndexIsReportedAndEndsTheWalk) {
    list.letListIndex(9);
    list.letAutoCheckScroll(false);
    list.RowsClear();
    addRows(2);
    EXPECT_EQ(list.ListIndex(), 9) << "what is current stays when the rows go";
    wheel(1);
    EXPECT_EQ(reportCount(), 1U);
    EXPECT_EQ(events.log, Lines{"ErrorWrongIndex Index=8"});
}

TEST_F(WheelOnIndex, RowsThatGoDuringTheWalkEndIt) {
    list.letListIndex(0);
    disable({1, 2, 3});
    // The reads of the current row yield before the first row of the walk does.
    desktop.onYield([] {}, 3);
    desktop.onYield([&] { list.RowsClear(); });
    wheel(-1);
    EXPECT_EQ(list.RowsCount(), 0);
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(WheelOnList, SwitchedOffIsSwallowedAndRepaints) {
    list.letWheelFunction(cWheelOff);
    addRows(40);
    EXPECT_EQ(paintsOf([&] { wheel(-1); }), 1);
    EXPECT_EQ(list.TopIndex(), 0);
    EXPECT_EQ(events.log, Lines{});
    list.letWheelFunction(static_cast<cWheelFunction>(9));
    EXPECT_EQ(paintsOf([&] { wheel(-1); }), 1);
    EXPECT_EQ(events.log, Lines{});
}

TEST_F(WheelOnList, OverABarTurnsTheListTheBarLiesIn) {
    addRows(40);
    desktop.move(inside.vertical().window(), 8, 100);
    wheel(-1);
    EXPECT_EQ(list.TopIndex(), 3);
    desktop.move(inside.vertical().window(), 8, 8);
    wheel(-1);
    EXPECT_EQ(list.TopIndex(), 6);
}

TEST_F(WheelOnList, ATurnInsideTheYieldOfATurnRunsToItsEnd) {
    addRows(40);
    bool nested = false;
    events.on("Scroll", [&] {
        if (!std::exchange(nested, true))
            desktop.postWheel(-120);
    });
    wheel(-1);
    EXPECT_EQ(list.TopIndex(), 6);
    EXPECT_EQ(events.log, (Lines{"Scroll", "  Scroll"}));
}

/// A container that takes what the list leaves.
class WheelOfAParent : public ::testing::Test, public UserControl {
  protected:
    bool UserControl_Wheel(Long /*Rotation*/, Integer /*Shift*/, Single /*X*/, Single /*Y*/) override {
        ++passedOn;
        return true;
    }
    /// How many of two turns over the list reach the container.
    int turnsPassedOn(bool userMode, bool saved) {
        host.userMode = userMode;
        lmListView list(desktop, host, events, form.get());
        if (saved)
            list.UserControl_ReadProperties(MemoryPropertyBag());
        else
            list.UserControl_InitProperties();
        list.window().letVisible(true);
        passedOn = 0;
        desktop.move(list.window(), 20, 20);
        desktop.wheel(120);
        desktop.wheel(-120);
        return passedOn;
    }

    int passedOn = 0;
    headless::Desktop desktop{testFonts()};
    TestHost host;
    RecordingEvents events;
    std::unique_ptr<Window> form = [this] {
        auto window = desktop.createWindow(nullptr, *this);
        window->place(0, 0, 400, 400);
        return window;
    }();
};

TEST_F(WheelOfAParent, GetsNothingFromAListInRunMode) {
    EXPECT_EQ(turnsPassedOn(true, true), 0);
}

TEST_F(WheelOfAParent, GetsAllFromAListAtDesignTime) {
    EXPECT_EQ(turnsPassedOn(false, true), 2);
}

TEST_F(WheelOfAParent, GetsAllFromAListWithoutSavedSettings) {
    EXPECT_EQ(turnsPassedOn(true, false), 2);
}

} // namespace lumtex::testing
