/// A host that writes no handler at all: everything works, with what each event lets pass by default.
#include "model/list_view.h"
#include "platform/property_bag.h"
#include "test_fonts.h"
#include "test_host.h"
#include "test_object.h"
#include "values/text.h"
#include "worlds/headless/desktop.h"
#include "worlds/headless/keyboard.h"

#include <chrono>
#include <limits>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

/// Two columns of 60 pixels with check boxes in the first, two rows of 20, no border.
class NoHandlers : public ::testing::Test {
  protected:
    NoHandlers() {
        list.UserControl_ReadProperties(MemoryPropertyBag{});
        list.letBorderVisible(false);
        list.letRowsDynamic(false);
        list.letRowHeight(20 * 15);
        list.window().place(0, 0, 300, 300);
        list.window().letVisible(true);
        for (int column = 0; column < 2; ++column)
            list.ColumnsAdd(u"column", nullptr, nullptr, nullptr, cColumnLeft, 60 * 15);
        list.RowsAdd(Long{-1}, u",", u"b,y");
        list.RowsAdd(Long{-1}, u",", u"a,x");
    }

    /// The mouse rests there for a while, as a person's does, before it clicks.
    void clickAt(Single x, Single y, bool twice = false) {
        desktop.move(list.window(), x, y);
        desktop.advance(std::chrono::seconds(1));
        desktop.move(list.window(), x, y);
        if (twice)
            desktop.doubleClick();
        else
            desktop.click();
    }
    std::string texts() { return toUtf8(list.ItemText(1, 1) + list.ItemText(2, 1)); }

    static constexpr Single inHeader = 8;
    static constexpr Single inSecondRow = 55;
    static constexpr Single underTheRows = 200;

    headless::Desktop desktop{testFonts()};
    TestHost host;
    lmListViewEvents none;
    lmListView list{desktop, host, none};
};

TEST_F(NoHandlers, ClicksSelectTickOpenTheEditorAndSort) {
    clickAt(90, inSecondRow);
    EXPECT_EQ(list.ListIndex(), 1);
    list.letStyle(cCheckBoxes);
    list.letColumnCheckBoxes(1, true);
    clickAt(10, inSecondRow);
    EXPECT_TRUE(list.ItemChecked(2, 1));
    list.letItemAllowEdit(2, 2, true);
    clickAt(90, inSecondRow, true);
    desktop.type(u"new\r");
    EXPECT_EQ(list.ItemText(2, 2), u"new");
    list.letColumnAllowSorting(1, true);
    clickAt(30, inHeader);
    EXPECT_EQ(texts(), "ba") << "the first click on a header sorts downwards";
    clickAt(30, inHeader);
    EXPECT_EQ(texts(), "ab");
}

TEST_F(NoHandlers, KeysAndTheMouseMoveTheRow) {
    list.letListIndex(0);
    list.letCheckMouseOver(true);
    clickAt(90, underTheRows);
    desktop.key(keys::down);
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(NoHandlers, AWrongIndexAndAPassThatFailsAreOver) {
    list.letListIndex(1);
    list.letListIndex(99);
    EXPECT_EQ(list.ListIndex(), 1);
    list.letColumnWidth(1, std::numeric_limits<Single>::infinity());
    list.letColumnWidth(1, 900);
    EXPECT_TRUE(desktop.runtime().boxes.empty()) << "the event alone tells of it";
    EXPECT_EQ(list.ItemText(2, 2), u"x");
}

TEST_F(NoHandlers, DraggedDataIsTakenAsTheSourceOffersIt) {
    const DragData data = std::make_shared<TestObject>();
    Long Effect = 1;
    Integer Button = 1;
    Integer Shift = 2;
    Single X = 3;
    Single Y = 4;
    Integer State = 5;
    bool DefaultCursors = true;
    Integer DataFormat = 13;
    UserControl& control = list;
    control.UserControl_OLECompleteDrag(Effect);
    control.UserControl_OLEDragDrop(data, Effect, Button, Shift, X, Y);
    control.UserControl_OLEDragOver(data, Effect, Button, Shift, X, Y, State);
    control.UserControl_OLEGiveFeedback(Effect, DefaultCursors);
    control.UserControl_OLESetData(data, DataFormat);
    control.UserControl_OLEStartDrag(data, Effect);
    EXPECT_EQ(Effect, 1);
    EXPECT_TRUE(DefaultCursors);
    EXPECT_TRUE(desktop.runtime().boxes.empty());
}

} // namespace
} // namespace lumtex::testing
