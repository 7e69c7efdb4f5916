#include "played_list.h"
#include "worlds/headless/keyboard.h"

#include <algorithm>

namespace lumtex::testing {

class Keys : public PlayedList {
  protected:
    void down() { list.UserControl_KeyDown(keys::down, 0); }
    void up() { list.UserControl_KeyDown(keys::up, 0); }
};

TEST_F(Keys, AreToldInTheOrderOfThePlatform) {
    fill(2);
    list.window().setFocus();
    desktop.type(u"a");
    EXPECT_EQ(taken(),
              (Lines{"KeyDown KeyCode=65 Shift=0", "KeyPress KeyAscii=97", "KeyUp KeyCode=65 Shift=0"}));
}

// Wanted: only the key pressed last counts, so Shift and Control are never held together.
TEST_F(Keys, OnlyTheLastKeyDownCountsForTheFlags) {
    struct Row {
        const char* name;
        std::vector<Integer> downs;
        bool shift;
        bool control;
    };
    const Row rows[] = {
        {"Shift", {16}, true, false},
        {"Control", {17}, false, true},
        {"Control, then Shift", {17, 16}, true, false},
        {"Control, then a letter", {17, 'C'}, false, false},
        {"Shift, then an arrow", {16, 40}, false, false},
    };
    for (const Row& row : rows) {
        for (const Integer key : row.downs)
            list.UserControl_KeyDown(key, 0);
        EXPECT_TRUE(says(inside.selection(), "shift=" + yesNo(row.shift))) << row.name;
        EXPECT_TRUE(says(inside.selection(), "control=" + yesNo(row.control))) << row.name;
    }
}

// Wanted: letting go of any key clears both.
TEST_F(Keys, LettingGoOfAnyKeyClearsTheFlagsBeforeTheHostIsTold) {
    list.UserControl_KeyDown(17, 0);
    bool seen = true;
    events.on("KeyUp", [&] { seen = bool(says(inside.selection(), "control=yes")); });
    list.UserControl_KeyUp('C', 0);
    EXPECT_FALSE(seen);
    EXPECT_TRUE(says(inside.selection(), "control=no"));
}

TEST_F(Keys, TheHostMayMakeAnotherKeyOfIt) {
    fill(3);
    events.otherKey = Integer{keys::down};
    list.UserControl_KeyDown('X', 0);
    EXPECT_EQ(selection(), "index=1 selected=1");
    events.otherKey = Integer{keys::control};
    list.UserControl_KeyDown(keys::down, 0);
    EXPECT_EQ(selection(), "index=1 selected=1");
    EXPECT_TRUE(says(inside.selection(), "control=yes"));
}

TEST_F(Keys, AnArrowOntoTheTopRowLeavesTheTopAlone) {
    fill(30);
    host.changed.clear();
    down();
    EXPECT_EQ(selection(), "index=1 selected=1");
    EXPECT_EQ(std::count(host.changed.begin(), host.changed.end(), u"TopIndex"), 0);
}

TEST_F(Keys, OnlyTheArrowsUpAndDownAct) {
    fill(30);
    list.letListIndex(4);
    for (const Integer key : {8, 9, 13, 27, 32, 33, 34, 35, 36, 37, 39, 45, 46, 65, 113}) {
        EXPECT_EQ(paintsOf([&] { list.UserControl_KeyDown(key, 0); }), 0) << key;
        EXPECT_EQ(selection(), "index=5 selected=5") << key;
    }
}

TEST_F(Keys, DownFromNoneGoesToTheFirstRowAndUpStays) {
    fill(3);
    EXPECT_EQ(paintsOf([&] { up(); }), 0);
    EXPECT_EQ(selection(), "index=0 selected=");
    down();
    EXPECT_EQ(selection(), "index=1 selected=1");
}

TEST_F(Keys, ArrowsMakeOneRowSelectedAndLeaveTheAnchor) {
    fill(5);
    list.letMultiSelect(true);
    click(cell(2, 2));
    list.letRowSelected(4, true);
    list.UserControl_KeyDown(keys::shift, 0);
    down();
    EXPECT_EQ(selection(), "index=3 selected=3");
    EXPECT_TRUE(says(inside.selection(), "anchor=2 selects=yes"));
    up();
    EXPECT_EQ(selection(), "index=2 selected=2");
}

TEST_F(Keys, ArrowsStepOverDisabledRowsAndStopWithoutAPaintBeforeTheLast) {
    fill(5);
    for (const Long row : {1, 3, 5})
        inside.rows()[static_cast<std::size_t>(row - 1)].Enabled = false;
    list.letListIndex(1);
    down();
    EXPECT_EQ(selection(), "index=4 selected=4");
    EXPECT_EQ(paintsOf([&] { down(); }), 0);
    EXPECT_EQ(selection(), "index=4 selected=4");
    up();
    EXPECT_EQ(selection(), "index=2 selected=2");
    EXPECT_EQ(paintsOf([&] { up(); }), 0);
    EXPECT_EQ(selection(), "index=2 selected=2");
    EXPECT_EQ(takenNames(), (Lines{"KeyDown", "KeyDown", "KeyDown", "KeyDown"}));
}

TEST_F(Keys, DownScrollsTheRowIntoTheLastPlaceAndUpIntoTheFirst) {
    fill(30);
    const Long visible = inside.VisibleItems();
    list.letListIndex(visible - 1);
    ASSERT_EQ(list.TopIndex(), 0);
    down();
    EXPECT_EQ(list.TopIndex(), 1);
    list.letTopIndex(10);
    down();
    EXPECT_EQ(inside.properties().ListIndex, visible + 1);
    EXPECT_EQ(list.TopIndex(), visible + 1 < 10 ? visible + 1 : 10);
    list.letTopIndex(20);
    up();
    EXPECT_EQ(list.TopIndex(), visible);
    list.letListIndex(25);
    list.letTopIndex(2);
    up();
    EXPECT_EQ(list.TopIndex(), 24);
}

TEST_F(Keys, ARowThatShowsIsScrolledNowhere) {
    fill(50);
    const Long visible = inside.VisibleItems();
    list.letListIndex(visible - 2);
    down();
    EXPECT_EQ(list.TopIndex(), 0) << "down to the last place";

    const auto topAfterUpTo = [&](Long row, Long top) {
        list.letListIndex(row + 1);
        list.letTopIndex(top);
        // Otherwise the index itself scrolls first.
        inside.letIndexScroll(false);
        host.changed.clear();
        up();
        EXPECT_EQ(inside.properties().ListIndex, row);
        return list.TopIndex();
    };
    EXPECT_EQ(topAfterUpTo(20, 20), 20);
    EXPECT_EQ(host.changed, std::vector<String>{u"ListIndex"}) << "the top row was not even assigned";
    EXPECT_EQ(topAfterUpTo(19, 20), 19);
    EXPECT_EQ(topAfterUpTo(20 + visible, 20), 20) << "the one below the last that shows";
    EXPECT_EQ(topAfterUpTo(20 + visible + 1, 20), 20 + visible + 1);
}

TEST_F(Keys, DownBringsARowAboveTheViewToItsTop) {
    fill(40);
    list.letListIndex(2);
    list.letTopIndex(20);
    list.UserControl_KeyDown(keys::down, 0);
    EXPECT_EQ(list.ListIndex(), 3);
    EXPECT_EQ(list.TopIndex(), 3);
}

TEST_F(Keys, AnArrowPaintsOnce) {
    fill(5);
    list.letListIndex(2);
    EXPECT_EQ(paintsOf([&] { list.UserControl_KeyDown(keys::up, 0); }), 1);
    EXPECT_EQ(paintsOf([&] { list.UserControl_KeyDown(keys::down, 0); }), 1);
}

TEST_F(Keys, UpReachesTheFirstRow) {
    fill(3);
    list.letListIndex(1);
    up();
    EXPECT_EQ(selection(), "index=1 selected=1");
    EXPECT_EQ(paintsOf([&] { up(); }), 0);
    EXPECT_EQ(selection(), "index=1 selected=1");
}

// Wanted: unlike Down, it leaves the scrolling of the index as it is.
TEST_F(Keys, OnlyDownHoldsOffTheScrollingOfTheIndex) {
    fill(30);
    list.letListIndex(25);
    list.letTopIndex(0);
    inside.letIndexScroll(true);
    std::vector<Long> tops;
    list.letClickOnIndexChange(true);
    events.on("Click", [&] { tops.push_back(says(inside.selection(), "scrolls=yes") ? 1 : 0); });
    up();
    down();
    EXPECT_EQ(tops, (std::vector<Long>{1, 0}));
}

TEST_F(Keys, ArrowsRaiseClickBeforeTheIndexChanges) {
    fill(3);
    list.letClickOnIndexChange(true);
    list.letListIndex(0);
    taken();
    Long seen = -1;
    events.on("Click", [&] { seen = list.ListIndex(); });
    down();
    EXPECT_EQ(takenNames(), (Lines{"KeyDown", "Click"}));
    EXPECT_EQ(seen, 0);
}

TEST_F(Keys, OnAnEmptyListOnlyTellTheHost) {
    addColumns({60});
    events.log.clear();
    EXPECT_EQ(paintsOf([&] {
                  down();
                  up();
              }),
              0);
    EXPECT_EQ(takenNames(), (Lines{"KeyDown", "KeyDown"}));
    EXPECT_EQ(reportCount(), 0U);
}

class SetNewSelected : public PlayedList {};

TEST_F(SetNewSelected, YieldsAfterEachRow) {
    fill(4);
    EXPECT_EQ(yieldsOf([&] { inside.SetNewSelected(2); }), 4);
    EXPECT_EQ(selection(), "index=0 selected=3");
}

TEST_F(SetNewSelected, ClearsRowAfterRow) {
    fill(3);
    for (RowRecord& row : inside.rows())
        row.Selected = true;
    Lines seen;
    desktop.onYield([&] { seen.push_back(selection()); }, 3);
    inside.SetNewSelected(1);
    EXPECT_EQ(seen, (Lines{"index=0 selected=2,3", "index=0 selected=3", "index=0 selected="}));
}

// Wanted: each row is a turn of the host, and whoever counts in the same member
// during it, a paint for one, leaves rows out.
TEST_F(SetNewSelected, APaintInsideAYieldLeavesRowsOut) {
    fill(4);
    for (RowRecord& row : inside.rows())
        row.Selected = true;
    desktop.onYield([&] { list.Redraw(); });
    inside.SetNewSelected(0);
    EXPECT_EQ(selection(), "index=0 selected=1,2,3,4");
}

TEST_F(SetNewSelected, EndsThoughEachYieldSendsItBack) {
    fill(4);
    int turns = 0;
    desktop.onYield(
        [&] {
            ++turns;
            inside.counters().scanIndex = -1;
        },
        1000000);
    inside.SetNewSelected(0);
    EXPECT_GT(turns, 4);
    EXPECT_LT(turns, 10000);
}

TEST_F(SetNewSelected, WithoutItsRowReportsABoundsFailure) {
    fill(4);
    desktop.onYield([&] { list.RowsClear(); });
    inside.SetNewSelected(3);
    EXPECT_EQ(lastReport(), "9 SetNewSelected");
}

} // namespace lumtex::testing
