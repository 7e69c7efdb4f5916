#include "played_list.h"

namespace lumtex::testing {

class HeaderClick : public PlayedList {
  protected:
    void fillUnsorted() {
        addColumns({60, 60});
        for (const StringView texts : {u"b,2", u"c,1", u"a,3"})
            list.RowsAdd(Long{-1}, u",", texts);
        list.letColumnAllowSorting(1, true);
        list.letColumnAllowSorting(2, true);
        events.log.clear();
    }
};

// Wanted: each click turns the direction, whichever column it falls on.
TEST_F(HeaderClick, TurnsTheDirectionOnWhateverColumn) {
    fillUnsorted();
    const Byte directions[] = {0, 1, 0, 1};
    const Long columns[] = {1, 1, 2, 1};
    for (int i = 0; i < 4; ++i) {
        click(header(columns[i]));
        EXPECT_TRUE(says(inside.sort(), "column=" + fromOne(columns[i] - 1))) << i;
        EXPECT_TRUE(says(inside.sort(), "up=" + numberText(directions[i]))) << i;
    }
}

TEST_F(HeaderClick, SortsDownwardsFirstThenUpwardsAlsoAcrossColumns) {
    fillUnsorted();
    ASSERT_TRUE(says(inside.sort(), "up=1"));
    click(header(1));
    EXPECT_EQ(columnTexts(1), "c b a");
    click(header(2));
    EXPECT_EQ(columnTexts(2), "1 2 3");
    click(header(1));
    EXPECT_EQ(columnTexts(1), "c b a");
}

// Wanted: a click on a header sorts as text, whatever the column holds.
TEST_F(HeaderClick, SortsNumbersAsText) {
    addColumns({60});
    for (const StringView number : {u"9", u"10", u"2"})
        list.RowsAdd(Long{-1}, u",", number);
    list.letColumnAllowSorting(1, true);
    click(header(1));
    EXPECT_EQ(columnTexts(1), "9 2 10");
}

TEST_F(HeaderClick, IsDownColumnSortUpClick) {
    fillUnsorted();
    click(header(2));
    EXPECT_EQ(takenNames(), (Lines{"MouseDown", "ColumnClick", "SortDone", "MouseUp", "Click"}));
    EXPECT_EQ(selection(), "index=0 selected=");
}

TEST_F(HeaderClick, MovesTheSelectionWithItsRowsAndLeavesTheIndex) {
    fillUnsorted();
    list.letListIndex(0);
    click(header(1));
    EXPECT_EQ(columnTexts(1), "c b a");
    EXPECT_EQ(selection(), "index=1 selected=2");
}

TEST_F(HeaderClick, WhoseColumnsTheHostClearedSortsNothing) {
    fillUnsorted();
    events.on("ColumnClick", [&] { list.ColumnsClear(); });
    click(header(1));
    EXPECT_EQ(takenNames(), (Lines{"MouseDown", "ColumnClick", "MouseUp", "Click"}));
    EXPECT_TRUE(says(inside.sort(), "up=1"));
}

} // namespace lumtex::testing
