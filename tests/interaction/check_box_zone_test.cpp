#include "interaction/check_box_zone.h"
#include "played_list.h"

namespace lumtex::testing {

class CheckBoxZonePress : public PlayedList {
  protected:
    bool toggles(Single x, Single y) {
        list.letItemChecked(2, 2, false);
        hover(cell(1, 1));
        list.UserControl_MouseDown(leftButton, 0, x, y);
        list.UserControl_MouseUp(leftButton, 0, x, y);
        return list.ItemChecked(2, 2);
    }
};

struct ZoneRow {
    const char* name;
    cItemAlign alignment;
    Single low;
    Single high;
};

// The second of two columns of 60 pixels, a box of 13.
// clang-format off
constexpr ZoneRow zoneRows[] = {
    {"left",   cItemLeft,   66,    79},
    {"centre", cItemCenter, 84.5F, 97.5F},
    {"right",  cItemRight,  103,   121},
};
// clang-format on

// Wanted: five pixels wider than the picture, up to the cell's right edge.
TEST(CheckBoxZone, FollowsTheIconsAlignment) {
    for (const ZoneRow& row : zoneRows) {
        const auto zone = checkBoxZone(row.alignment, 60, 60, 13, 0);
        ASSERT_TRUE(zone) << row.name;
        EXPECT_EQ(zone->low, row.low) << row.name;
        EXPECT_EQ(zone->high, row.high) << row.name;
        const auto scrolled = checkBoxZone(row.alignment, 60, 60, 13, 25);
        ASSERT_TRUE(scrolled) << row.name;
        EXPECT_EQ(scrolled->low, row.low - 25) << row.name;
        EXPECT_EQ(scrolled->high, row.high - 25) << row.name;
    }
    EXPECT_FALSE(checkBoxZone(static_cast<cItemAlign>(77), 60, 60, 13, 0));
}

TEST_F(CheckBoxZonePress, PaintsTheNewStateWithoutAutoRedrawBeforeTheHostHearsOfIt) {
    fill(3);
    hover(cell(1, 1));
    list.letAutoRedraw(false);
    int before = 0;
    events.on("ItemCheck", [&] { before = window().presented(); });
    int painted = 0;
    events.on("ItemChecked", [&] { painted = window().presented() - before; });
    list.UserControl_MouseDown(leftButton, 0, 70, rowTop(2) + 8);
    EXPECT_TRUE(list.ItemChecked(2, 2));
    EXPECT_EQ(painted, 1);
}

// Wanted: a press at the place of a check box toggles the cell, whether its column draws boxes or not.
TEST_F(CheckBoxZonePress, TogglesAtTheZonesEndsAndNotBeyond) {
    fill(3);
    const Single y = rowTop(2) + 8;
    for (const bool boxes : {false, true}) {
        list.letColumnCheckBoxes(2, boxes);
        for (const ZoneRow& row : zoneRows) {
            list.letItemIconAlignment(2, 2, row.alignment);
            EXPECT_FALSE(toggles(row.low - 0.5F, y)) << row.name;
            EXPECT_TRUE(toggles(row.low, y)) << row.name;
            // The right zone ends one pixel behind the column, which a press there no longer means.
            const Single high = std::min(row.high, 119.5F);
            EXPECT_TRUE(toggles(high, y)) << row.name;
            EXPECT_FALSE(toggles(high + 0.6F, y)) << row.name;
        }
    }
}

TEST_F(CheckBoxZonePress, StartsTwoPixelsUnderTheRowsTopAndIsThirteenHigh) {
    fill(3);
    EXPECT_FALSE(toggles(70, rowTop(2) + 1.5F));
    EXPECT_TRUE(toggles(70, rowTop(2) + 2));
    EXPECT_TRUE(toggles(70, rowTop(2) + 15));
    EXPECT_FALSE(toggles(70, rowTop(2) + 15.5F));
}

TEST_F(CheckBoxZonePress, TrustsTheStoredLeftOfTheColumn) {
    fill(3);
    inside.columns()[1]->Left += 10 * 15;
    EXPECT_FALSE(toggles(75, rowTop(2) + 8));
    EXPECT_TRUE(toggles(76, rowTop(2) + 8));
}

TEST_F(CheckBoxZonePress, AsksBeforeAndTellsAfter) {
    fill(3);
    press({columnLeft(2) + 10, rowTop(2) + 8});
    EXPECT_EQ(
        taken(),
        (Lines{"ItemCheck Row=2 Column=2 NewValue=True",
               "ItemChecked Row=2 Column=2 NewValue=True",
               "ItemDown Row=2 Column=2",
               "MouseDown Button=1 Shift=0 X=70 Y=" + std::to_string(static_cast<int>(rowTop(2) + 8))}));
    EXPECT_TRUE(list.ItemChecked(2, 2));
    EXPECT_EQ(list.ItemsCheckedCount(2), 1);
}

TEST_F(CheckBoxZonePress, ThatIsCancelledKeepsTheCheckMarkAndStillRunsTheSecondPressRule) {
    fill(3);
    list.letAllowEdit(true);
    list.letItemAllowEdit(2, 2, true);
    events.cancelCheck = true;
    const At box{columnLeft(2) + 10, rowTop(2) + 8};
    click(box);
    press(box);
    EXPECT_EQ(takenNames(), (Lines{"ItemCheck", "MouseDown"}));
    EXPECT_FALSE(list.ItemChecked(2, 2));
    EXPECT_TRUE(inside.editor().Visible());
}

TEST_F(CheckBoxZonePress, TellsTheValueReadBack) {
    fill(3);
    events.on("ItemCheck", [&] { list.letItemChecked(2, 2, true); });
    press({columnLeft(2) + 10, rowTop(2) + 8});
    EXPECT_EQ(taken()[1], "ItemChecked Row=2 Column=2 NewValue=False");
}

} // namespace lumtex::testing
