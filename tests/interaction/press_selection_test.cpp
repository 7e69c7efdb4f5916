#include "played_list.h"

namespace lumtex::testing {

class PressSelection : public PlayedList {
  protected:
    static constexpr Integer shiftKey = 16;
    static constexpr Integer controlKey = 17;
};

struct SelectionRow {
    const char* name;
    bool multiSelect;
    Integer heldKey; ///< 0 for none
    Long anchor;     ///< 0-based
    Long pressed;    ///< 1-based
    const char* after;
    Long anchorAfter;
};

// Five rows; before the press row 2 is current, rows 2 and 4 are selected, and row 3 is disabled.
// clang-format off
constexpr SelectionRow selectionRows[] = {
    {"single, no key",                   false, 0,  1,  5, "index=5 selected=5",       4},
    {"single, Shift",                    false, 16, 1,  5, "index=5 selected=5",       4},
    {"single, Control",                  false, 17, 1,  5, "index=5 selected=5",       4},
    {"single, Control, a selected row",  false, 17, 1,  2, "index=2 selected=",        1},
    {"multi, no key",                    true,  0,  1,  5, "index=5 selected=5",       4},
    {"multi, no key, a selected row",    true,  0,  1,  4, "index=4 selected=4",       3},
    {"multi, Control",                   true,  17, 1,  5, "index=5 selected=2,4,5",   4},
    {"multi, Control, a selected row",   true,  17, 1,  4, "index=4 selected=2",       3},
    {"multi, Control, the current row",  true,  17, 1,  2, "index=2 selected=4",       1},
    {"multi, Shift, no anchor",          true,  16, -1, 5, "index=2 selected=2,4",    -1},
    {"multi, Shift, downwards",          true,  16, 1,  5, "index=5 selected=2,4,5",   1},
    {"multi, Shift, upwards",            true,  16, 4,  1, "index=1 selected=1,2,4,5", 4},
    {"multi, Shift, the anchor itself",  true,  16, 3,  4, "index=4 selected=4",       3},
};
// clang-format on

// Wanted: whatever MultiSelect says, Control takes the selection from the current row.
TEST_F(PressSelection, FollowsModeAndKey) {
    fill(5);
    for (const SelectionRow& row : selectionRows) {
        list.letMultiSelect(row.multiSelect);
        list.letListIndex(1);
        inside.rows()[3].Selected = true;
        inside.rows()[2].Enabled = false;
        inside.letAnchor(row.anchor);
        if (row.heldKey != 0)
            list.UserControl_KeyDown(row.heldKey, 0);
        press(cell(row.pressed, 2));
        desktop.release();
        EXPECT_EQ(selection(), row.after) << row.name;
        EXPECT_TRUE(says(inside.selection(), "anchor=" + fromOne(row.anchorAfter))) << row.name;
        list.UserControl_KeyUp(row.heldKey, 0);
    }
}

TEST_F(PressSelection, ShiftRangeLeavesDisabledRowsUnselected) {
    fill(5);
    list.letMultiSelect(true);
    list.letRowEnabled(3, false);
    click(cell(1, 1));
    list.UserControl_KeyDown(shiftKey, 0);
    click(cell(5, 1));
    EXPECT_EQ(selection(), "index=5 selected=1,2,4,5");
}

TEST_F(PressSelection, ControlOnASelectedRowTakesItsFlagButLeavesItCurrent) {
    fill(3);
    list.letMultiSelect(true);
    click(cell(2, 1));
    list.UserControl_KeyDown(controlKey, 0);
    click(cell(2, 1));
    EXPECT_EQ(selection(), "index=2 selected=");
}

TEST_F(PressSelection, ShiftWithoutAnchorAndWithoutCurrentRowIsABoundsFailure) {
    fill(3);
    list.letMultiSelect(true);
    list.UserControl_KeyDown(shiftKey, 0);
    press({30, rowTop(2) + 18});
    ASSERT_EQ(reportCount(), 1U);
    EXPECT_EQ(lastReport(), "9 UserControl_MouseDown");
    EXPECT_EQ(selection(), "index=0 selected=");
    EXPECT_EQ(takenNames(), (Lines{"ItemDown", "MouseDown"}));
}

TEST_F(PressSelection, ControlOnADisabledRowTurnsTheOldCurrentRow) {
    fill(3);
    list.letMultiSelect(true);
    list.letListIndex(0);
    inside.rows()[1].Enabled = false;
    list.UserControl_KeyDown(controlKey, 0);
    press(cell(2, 1));
    EXPECT_EQ(selection(), "index=1 selected=1");
    EXPECT_TRUE(says(inside.selection(), "anchor=2"));
}

TEST_F(PressSelection, IsPlainAfterAnotherKeyWentDownWhileControlIsHeld) {
    fill(3);
    list.letMultiSelect(true);
    click(cell(1, 1));
    desktop.keyDown(controlKey);
    desktop.keyDown('A');
    click(cell(3, 1));
    EXPECT_EQ(selection(), "index=3 selected=3");
}

TEST_F(PressSelection, TakesNoNoticeOfTheShiftArgumentOfTheMouse) {
    fill(3);
    list.letMultiSelect(true);
    click(cell(1, 1));
    hover(cell(3, 1));
    desktop.press(leftButton, 2);
    EXPECT_EQ(selection(), "index=3 selected=3");
}

} // namespace lumtex::testing
