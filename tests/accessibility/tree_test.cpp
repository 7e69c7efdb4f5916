/// Which element stands below, beside and above which.
#include "spoken_list.h"

#include <gmock/gmock.h>

namespace lumtex::testing {
namespace {

using namespace accessibility;

using Tree = SpokenList;

std::string childrenOf(const AccessibleList& list, const Element& element) {
    std::string all;
    for (Long number = 1; number <= list.childCount(element); ++number) {
        const Element child = list.child(element, number);
        EXPECT_EQ(list.numberOf(child), number) << named(child);
        EXPECT_EQ(list.parent(child), element) << named(child);
        all += (all.empty() ? "" : "; ") + named(child);
    }
    return all;
}

TEST_F(Tree, OfAnEmptyListIsTheListAlone) {
    EXPECT_EQ(childrenOf(spoken, theList), "");
    EXPECT_EQ(spoken.focus(), theList);
    EXPECT_FALSE(spoken.exists(rowElement(1)));
    EXPECT_FALSE(spoken.exists(headerElement(1)));
}

TEST_F(Tree, HasTheRowsByNumberAndBehindThemTheRest) {
    addCities();
    EXPECT_EQ(childrenOf(spoken, theList), "row 1; row 2; row 3; headers");
    EXPECT_EQ(childrenOf(spoken, rowElement(2)), "cell 2,1; cell 2,2; cell 2,3");
    EXPECT_EQ(childrenOf(spoken, theHeaders), "header 1; header 2; header 3");
    EXPECT_EQ(childrenOf(spoken, cellElement(2, 1)), "");
}

TEST_F(Tree, HasBarsAndEditorWhileTheyShow) {
    addCities();
    addRows(30, u"Porto");
    list.letColumnWidth(3, 6000);
    settle();
    list.letTopIndex(0);
    list.SetEdit(1, 1);
    EXPECT_EQ(spoken.childCount(theList), 33 + 4);
    EXPECT_EQ(named(spoken.child(theList, 34)), "headers");
    EXPECT_EQ(named(spoken.child(theList, 35)), "vertical bar");
    EXPECT_EQ(named(spoken.child(theList, 36)), "horizontal bar");
    EXPECT_EQ(named(spoken.child(theList, 37)), "editor");
    EXPECT_EQ(spoken.focus(), theEditor);
    EXPECT_EQ(childrenOf(spoken, horizontalBar),
              "horizontal low arrow; horizontal thumb; horizontal high arrow");
    list.letHideColumnHeaders(true);
    EXPECT_EQ(named(spoken.child(theList, 34)), "vertical bar");
    EXPECT_EQ(spoken.numberOf(verticalBar), 34);
    EXPECT_EQ(spoken.numberOf(theEditor), 36);
    EXPECT_FALSE(spoken.exists(headerElement(1)));
}

TEST_F(Tree, GivesACellItsCheckBox) {
    addCities();
    EXPECT_FALSE(spoken.exists(checkBoxElement(1, 2)));
    list.letStyle(cCheckBoxes);
    list.letColumnCheckBoxes(2, true);
    EXPECT_EQ(childrenOf(spoken, cellElement(1, 2)), "box 1,2");
    EXPECT_EQ(childrenOf(spoken, cellElement(1, 1)), "");
}

TEST_F(Tree, IsWalkedInAllDirections) {
    addCities();
    const Element middle = cellElement(2, 2);
    EXPECT_EQ(named(spoken.navigate(middle, Direction::left)), "cell 2,1");
    EXPECT_EQ(named(spoken.navigate(middle, Direction::right)), "cell 2,3");
    EXPECT_EQ(named(spoken.navigate(middle, Direction::up)), "cell 1,2");
    EXPECT_EQ(named(spoken.navigate(middle, Direction::down)), "cell 3,2");
    EXPECT_EQ(named(spoken.navigate(middle, Direction::next)), "cell 2,3");
    EXPECT_EQ(named(spoken.navigate(middle, Direction::previous)), "cell 2,1");
    EXPECT_EQ(named(spoken.navigate(middle, Direction::parent)), "row 2");
    EXPECT_EQ(named(spoken.navigate(theList, Direction::firstChild)), "row 1");
    EXPECT_EQ(named(spoken.navigate(theList, Direction::lastChild)), "headers");
    EXPECT_EQ(named(spoken.navigate(rowElement(3), Direction::next)), "headers");
    EXPECT_EQ(named(spoken.navigate(rowElement(3), Direction::down)), "nothing");
    EXPECT_EQ(named(spoken.navigate(cellElement(1, 1), Direction::left)), "nothing");
    EXPECT_EQ(named(spoken.navigate(theList, Direction::next)), "nothing");
}

TEST_F(Tree, KnowsNothingBeyondItsEnds) {
    addCities();
    for (const Element& element : {nothing,
                                   rowElement(0),
                                   rowElement(4),
                                   rowElement(-2147483647 - 1),
                                   rowElement(2147483647),
                                   cellElement(1, 0),
                                   cellElement(1, 4),
                                   cellElement(4, 1),
                                   headerElement(0),
                                   headerElement(4),
                                   verticalBar,
                                   theEditor}) {
        EXPECT_FALSE(spoken.exists(element)) << named(element);
        EXPECT_EQ(states(element), "gone") << named(element);
        EXPECT_EQ(name(element), "") << named(element);
        EXPECT_EQ(place(element), "none") << named(element);
        EXPECT_EQ(spoken.childCount(element), 0) << named(element);
        EXPECT_EQ(spoken.numberOf(element), 0) << named(element);
        EXPECT_FALSE(spoken.act(element)) << named(element);
        EXPECT_FALSE(spoken.scrollTo(element)) << named(element);
        EXPECT_FALSE(spoken.setValue(element, u"1")) << named(element);
    }
    EXPECT_EQ(spoken.child(theList, 0), nothing);
    EXPECT_EQ(spoken.child(theList, 5), nothing);
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(Tree, ForgetsRowsThatAreGone) {
    addCities();
    list.RowsRemove(2);
    EXPECT_EQ(states(rowElement(3)), "gone");
    EXPECT_EQ(name(rowElement(2)), "Quito");
    list.RowsClear();
    EXPECT_EQ(states(rowElement(1)), "gone");
    EXPECT_EQ(spoken.focus(), theList);
}

TEST_F(Tree, OfAMillionRowsIsWalkedByNumber) {
    addCities();
    list.letAutoRedraw(false);
    list.letAutoCheckScroll(false);
    addRows(1'000'000 - 3, u"Porto,868,Portugal");
    settle();
    EXPECT_EQ(spoken.childCount(theList), 1'000'002);
    EXPECT_EQ(name(spoken.child(theList, 1'000'000)), "Porto");
    EXPECT_EQ(named(spoken.child(theList, 1'000'001)), "headers");
    EXPECT_EQ(spoken.numberOf(verticalBar), 1'000'002);
    EXPECT_TRUE(spoken.scrollTo(rowElement(900'000)));
    EXPECT_NE(place(rowElement(900'000)), "none");
    EXPECT_EQ(place(rowElement(1)), "none");
}

TEST_F(Tree, OfAListThatHasEndedIsEmpty) {
    auto* ending = new lmListView(desktop, host, events);
    ending->UserControl_InitProperties();
    ending->ColumnsAdd(u"City");
    ending->RowsAdd(Long{-1}, u",", u"Lisbon");
    AccessibleList orphan(*ending);
    EXPECT_TRUE(orphan.exists(rowElement(1)));
    delete ending;
    EXPECT_TRUE(orphan.hasEnded());
    EXPECT_EQ(inWords(orphan.states(theList)), "gone");
    EXPECT_EQ(orphan.focus(), nothing);
    EXPECT_EQ(orphan.childCount(theList), 0);
    EXPECT_EQ(orphan.rowCount(), 0);
    EXPECT_FALSE(orphan.act(rowElement(1)));
    EXPECT_EQ(orphan.at(1, 1), nothing);
}

TEST_F(Tree, BelongsToTheNewestWatcher) {
    addCities();
    {
        AccessibleList second(list);
        EXPECT_TRUE(spoken.hasEnded());
        EXPECT_EQ(second.rowCount(), 3);
    }
    AccessibleList third(list);
    EXPECT_EQ(third.rowCount(), 3);
}

} // namespace
} // namespace lumtex::testing
