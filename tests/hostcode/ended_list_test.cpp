/// What a list still does that ended within its own call.
#include "hostcode/odd_moments_in_memory.h"

#include <utility>

namespace lumtex::testing {

class EndedList : public OddMomentsInMemory {};

TEST_F(EndedList, LetsGoOfAllThatItHeldBeforeTheDeleteReturns) {
    makeList();
    holdAll();
    EXPECT_GT(releases.alive, 0);
    int heldAfterwards = -1;
    events.on("SortDone", [&] {
        list.reset();
        heldAfterwards = releases.alive;
    });
    list->Sort(1, cAscending, cSortText);
    events.on("SortDone", {});
    EXPECT_EQ(heldAfterwards, 0);
}

TEST_F(EndedList, IsOutOfSightBeforeTheDeleteReturns) {
    makeList();
    Window* const window = &list->window();
    bool visible = true;
    events.on("SortDone", [&] {
        list.reset();
        visible = window->Visible(); // its memory stays until the call returns
    });
    list->Sort(1, cAscending, cSortText);
    events.on("SortDone", {});
    EXPECT_FALSE(visible);
}

TEST_F(EndedList, ReportsNothingMore) {
    Error().letSilentError(false);
    makeList();
    desktop.runtime().boxes.clear();
    desktop.runtime().whileBoxIsOpen = [&] { list.reset(); };
    // Each of its four rows would be reported.
    list->Sort(9, cAscending, cSortText);
    list ? list->Sort(-5, cAscending, cSortText) : void();
    desktop.runtime().whileBoxIsOpen = {};
    EXPECT_LE(desktop.runtime().boxes.size(), 1U);
    EXPECT_EQ(list, nullptr);
}

TEST_F(EndedList, LetsNoFailureOutOfTheRemovalThatItEndsIn) {
    makeList();
    desktop.onYield([&] { list.reset(); });
    EXPECT_NO_THROW(list->RowsRemove(1));
    EXPECT_EQ(list, nullptr);
}

TEST_F(EndedList, LetsNoFailureOutOfTheRemovalInWhoseReportItEnds) {
    Error().letSilentError(false);
    makeList();
    // A row added while another one comes in ends the walk over that one's cells.
    list->setDefaultItemFont(nullptr);
    bool added = false;
    desktop.runtime().whileBoxIsOpen = [&] {
        if (!std::exchange(added, true))
            list->RowsAdd(Long{-1}, u",", u"whole");
    };
    list->RowsAdd(Long{-1}, u",", u"short");
    desktop.runtime().boxes.clear();
    desktop.runtime().whileBoxIsOpen = [&] { list.reset(); };
    // It asks for check marks of cells that are not there.
    EXPECT_NO_THROW(list->RowsRemove(rows + 1));
    desktop.runtime().whileBoxIsOpen = {};
    EXPECT_EQ(desktop.runtime().boxes.size(), 1U);
    EXPECT_EQ(list, nullptr);
}

TEST_F(EndedList, TellsItsHostNothingMore) {
    makeList();
    bool told = false;
    events.on("SortDone", [&] {
        list.reset();
        host.changed.clear();
    });
    list->Sort(1, cAscending, cSortText);
    told = !host.changed.empty();
    events.on("SortDone", {});
    EXPECT_FALSE(told);
}

TEST_F(EndedList, GoesAtOnceWhereNoneOfItsCallsRuns) {
    makeList();
    hold(HeldKind::tag);
    list.reset();
    EXPECT_EQ(releases.alive, 0);
}

TEST_F(EndedList, LetsGoOfWhatHostCodeGivesItMeanwhile) {
    makeList();
    hold(HeldKind::tag);
    int given = 0;
    releases.code = [&] {
        if (given++ < 5)
            list->setBackgroundPicture(std::make_shared<CallingPicture>(releases));
    };
    endListInSight();
    EXPECT_GT(given, 5);
    EXPECT_EQ(releases.alive, 0);
}

TEST_F(EndedList, LetsGoOfWhatHostCodeGivesItForEver) {
    makeList();
    hold(HeldKind::tag);
    constexpr int forEver = 1000;
    releases.code = [&] {
        if (releases.gone < forEver)
            list->setBackgroundPicture(std::make_shared<CallingPicture>(releases));
    };
    endListInSight();
    EXPECT_EQ(releases.alive, 0);
}

} // namespace lumtex::testing
