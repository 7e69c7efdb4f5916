#include "log_comparison.h"
#include "played_list.h"
#include "test_object.h"
#include "worlds/headless/keyboard.h"

#include <set>

namespace lumtex::testing {

using std::chrono::milliseconds;

/// A user who does everything there is to do, while the host changes the list at the worst moments.
class MisbehavingHost : public PlayedList {
  protected:
    MisbehavingHost() { Error().letSilentError(true); }

    using Change = std::function<void()>;

    struct NamedChange {
        const char* name;
        Change change;
    };

    std::vector<NamedChange> changes() {
        return {
            {"add rows", [this] { list.RowsAdd(Long{0}, u",", u"new,row"); }},
            {"append a row", [this] { list.RowsAdd(Long{-1}, u",", u"last"); }},
            {"remove the first row", [this] { list.RowsRemove(1); }},
            {"remove the selected rows", [this] { list.RowsSelectedRemove(); }},
            {"clear the rows", [this] { list.RowsClear(); }},
            {"clear the columns", [this] { list.ColumnsClear(); }},
            {"clear everything",
             [this] {
                 list.RowsClear();
                 list.ColumnsClear();
             }},
            {"add a column",
             [this] {
                 if (list.ColumnsCount() < 20)
                     list.ColumnsAdd(u"more");
             }},
            {"sort", [this] { list.Sort(1, cDescending); }},
            {"move the index", [this] { list.letListIndex(0); }},
            {"take the index away", [this] { list.letListIndex(-1); }},
            {"scroll", [this] { list.letTopIndex(2); }},
            {"open the editor", [this] { list.SetEdit(1, 1); }},
            {"close the editor", [this] { list.StopEdit(); }},
            {"change properties",
             [this] {
                 list.letHideColumnHeaders(!list.HideColumnHeaders());
                 list.letRowsDynamic(!list.RowsDynamic());
                 list.letMultiSelect(!list.MultiSelect());
                 list.letColumnWidth(1, 0);
                 list.letColumnWidth(1, 3000);
             }},
            {"resize it", [this] { window().place(100, 100, 120, 60); }},
            {"paint", [this] { list.Redraw(); }},
            {"save",
             [this] {
                 MemoryPropertyBag bag;
                 list.UserControl_WriteProperties(bag);
             }},
            {"press and release",
             [this] {
                 // A click that makes another one would go on for ever.
                 if (++posted_ % 3 != 0)
                     return;
                 desktop.postPress();
                 desktop.postRelease();
             }},
            {"read settings anew", [this] { list.UserControl_ReadProperties(MemoryPropertyBag{}); }},
        };
    }

    /// As `fill`, with every permission that there is.
    void fillForAll() {
        list.letRowsDynamic(false);
        list.letHideColumnHeaders(false);
        list.letAllowEdit(true);
        list.letMultiSelect(true);
        list.letClickOnIndexChange(true);
        list.letCheckMouseOver(true);
        list.letAutoRedraw(false);
        fill(20);
        list.letAutoRedraw(true);
        list.Redraw();
        for (Long row = 1; row <= 3; ++row)
            list.letItemAllowEdit(row, 2, true);
        list.letColumnAllowSorting(1, true);
    }

    void playMouse() {
        click(cell(1, 2));
        click(cell(1, 2));
        desktop.type(u"x\r");
        click({10, rowTop(2) + 8});
        hover(cell(2, 2));
        desktop.doubleClick();
        press(cell(2, 1));
        move(cell(4, 1));
        move({30, 230});
        desktop.advance(milliseconds(2));
        move({30, -5});
        desktop.advance(milliseconds(2));
        desktop.release();
        click(header(1));
        press(divider(1));
        move(divider(1));
        move({90, 5});
        desktop.release();
        desktop.wheel(-120);
        inside.letHoverRow(1);
        move({280, 100});
        inside.letAllowItemMoving(true);
        press(cell(2, 1));
        move(cell(5, 1));
        desktop.release();
        inside.letAllowItemMoving(false);
        if (inside.vertical().Visible()) {
            hover({inside.vertical().Left() + 8, 30});
            desktop.dragTo(list.window(), inside.vertical().Left() + 8, 90);
        }
    }

    void playKeys() {
        list.StopEdit();
        list.window().setFocus();
        desktop.type(u"k");
        desktop.key(keys::down);
        desktop.key(keys::up);
        desktop.keyDown(keys::shift);
        click(cell(3, 1));
        desktop.keyUp(keys::shift);
        list.letListIndex(999);
        list.setItemObject(999, 999, std::make_shared<TestObject>());
    }

    void playDragEvents() {
        Long effect = 1;
        Integer number = 1;
        Single place = 1;
        bool cursors = true;
        list.UserControl_OLECompleteDrag(effect);
        list.UserControl_OLEDragDrop(nullptr, effect, number, number, place, place);
        list.UserControl_OLEDragOver(nullptr, effect, number, number, place, place, number);
        list.UserControl_OLEGiveFeedback(effect, cursors);
        list.UserControl_OLESetData(nullptr, number);
        list.UserControl_OLEStartDrag(nullptr, effect);
    }

    void playAll() {
        fillForAll();
        playMouse();
        playKeys();
        playDragEvents();
    }

    /// The part that raises this event.
    void playFor(const std::string& event) {
        fillForAll();
        if (event.starts_with("OLE"))
            playDragEvents();
        else if (event.starts_with("Key") || event == "ErrorWrongIndex" || event == "ListViewError")
            playKeys();
        else
            playMouse();
    }

    /// Whatever the host did, a list that starts anew works as on its first day.
    void expectUnharmed(const std::string& what) {
        desktop.release();
        list.StopEdit();
        list.UserControl_ReadProperties(MemoryPropertyBag{});
        inside.letAllowItemMoving(false);
        window().place(100, 100, 300, 200);
        list.letBorderVisible(false);
        list.letRowsDynamic(false);
        list.letRowHeight(rowHeight * 15);
        list.letClickOnIndexChange(false);
        list.letMultiSelect(false);
        inside.makeIdle();
        fill(3);
        click(cell(2, 1));
        EXPECT_TRUE(
            sameLog(takenNames(), {"ItemDown", "MouseDown", "MouseUp", "ItemUp", "ItemClick", "Click"}))
            << what;
        EXPECT_EQ(selection(), "index=2 selected=2") << what;
        EXPECT_EQ(columnTexts(1), "1a 2a 3a") << what;
    }

    /// Host code that does not run inside itself.
    Change guarded(Change change) {
        return [this, change = std::move(change)] {
            if (changing_)
                return;
            changing_ = true;
            change();
            changing_ = false;
        };
    }

    bool changing_ = false;
    int posted_ = 0;
};

constexpr const char* eventNames[] = {
    "Click",           "DblClick",    "ItemCheck",     "ItemChecked",     "MouseUp",      "MouseMove",
    "MouseDown",       "ColumnClick", "Scroll",        "KeyDown",         "KeyPress",     "KeyUp",
    "OLECompleteDrag", "OLEDragDrop", "OLEDragOver",   "OLEGiveFeedback", "OLESetData",   "OLEStartDrag",
    "ErrorWrongIndex", "SortDone",    "ListViewError", "ItemClick",       "ItemDblClick", "ItemDown",
    "ItemUp",          "ItemChanged", "ItemOver",
};
static_assert(std::size(eventNames) == 27);

TEST_F(MisbehavingHost, IsGivenAllEventsToMisbehaveIn) {
    std::set<std::string> raised;
    for (const char* event : eventNames)
        events.on(event, [&, event] { raised.insert(event); });
    playAll();
    for (const char* event : eventNames)
        EXPECT_TRUE(raised.contains(event)) << event;
}

TEST_F(MisbehavingHost, ChangesTheListInsideEachEvent) {
    for (const NamedChange& each : changes()) {
        for (const char* event : eventNames) {
            events.on(event, guarded(each.change));
            playFor(event);
            events.on(event, [] {});
            expectUnharmed(std::string(each.name) + " in " + event);
        }
    }
}

TEST_F(MisbehavingHost, ChangesTheListInsideEachYield) {
    for (const NamedChange& each : changes()) {
        int yields = 0;
        constexpr int many = 1000;
        desktop.onYield(guarded([&] {
                            ++yields;
                            each.change();
                        }),
                        many);
        playAll();
        EXPECT_GT(yields, 20) << each.name;
        changing_ = true; // uses up what is left without effect
        for (int left = 0; left < many; ++left)
            desktop.runtime().DoEvents();
        changing_ = false;
        expectUnharmed(each.name);
    }
}

/// What the statements in order leave behind, where a host does one thing at one point.
class ChangeInsideAnEvent : public PlayedList {
  protected:
    At box(Long row) { return {columnLeft(1) + 10, rowTop(row) + 8}; }
};

TEST_F(ChangeInsideAnEvent, RowsClearedInItemCheckFailInTheToggleAndTheEventsStillCome) {
    fill(3);
    events.on("ItemCheck", [&] { list.RowsClear(); });
    press(box(2));
    EXPECT_TRUE(sameLog(taken(),
                        {"ItemCheck Row=2 Column=1 NewValue=True",
                         "ItemChecked Row=2 Column=1 NewValue=False",
                         "ItemDown Row=2 Column=1",
                         "MouseDown Button=1 Shift=0 X=10 Y=" + std::to_string(static_cast<int>(box(2).y))}));
    EXPECT_EQ(list.RowsCount(), 0);
    EXPECT_TRUE(says(inside.edit(), "row=2"));
    EXPECT_EQ(lastReport(), "9 ItemChecked");
}

TEST_F(ChangeInsideAnEvent, ARowInsertedInItemCheckHasTheOtherRowToggled) {
    fill(3);
    events.on("ItemCheck", [&] { list.RowsAdd(Long{0}, u",", u"0a,0b"); });
    press(box(2));
    EXPECT_EQ(columnTexts(1), "0a 1a 2a 3a");
    EXPECT_TRUE(list.ItemChecked(2, 1)) << "the number of the row is kept, not the row";
    EXPECT_FALSE(list.ItemChecked(3, 1));
}

TEST_F(ChangeInsideAnEvent, ASortInItemDownLeavesTheRememberedPlace) {
    fill(3);
    events.on("ItemDown", [&] { list.Sort(1, cDescending); });
    click(cell(3, 1));
    EXPECT_EQ(columnTexts(1), "3a 2a 1a");
    EXPECT_EQ(selection(), "index=3 selected=1");
    EXPECT_EQ(taken().back(), "Click");
    EXPECT_TRUE(says(inside.edit(), "row=3"));
}

TEST_F(ChangeInsideAnEvent, AnIndexSetInItemDownRewritesNoSelectionAndOneSetInMouseDownDoes) {
    fill(3);
    events.on("ItemDown", [&] { list.letListIndex(0); });
    press(cell(3, 1));
    EXPECT_EQ(selection(), "index=1 selected=3");
    desktop.release();
    events.on("ItemDown", [] {});
    events.on("MouseDown", [&] { list.letListIndex(0); });
    press(cell(3, 1));
    EXPECT_EQ(selection(), "index=1 selected=1");
}

TEST_F(ChangeInsideAnEvent, RowsClearedInMouseUpEndTheRelease) {
    fill(3);
    events.on("MouseUp", [&] { list.RowsClear(); });
    click(cell(2, 1));
    EXPECT_TRUE(sameLog(takenNames(), {"ItemDown", "MouseDown", "MouseUp", "Click"}));
}

TEST_F(ChangeInsideAnEvent, RowsClearedInItemUpStillBringItemClick) {
    fill(3);
    events.on("ItemUp", [&] { list.RowsClear(); });
    click(cell(2, 1));
    EXPECT_EQ(taken()[4], "ItemClick Row=2 Column=1");
}

TEST_F(ChangeInsideAnEvent, RowsClearedInMouseMoveEndTheMove) {
    fill(3);
    press(cell(1, 1));
    events.on("MouseMove", [&] { list.RowsClear(); });
    move(cell(3, 1));
    EXPECT_EQ(list.RowsCount(), 0);
    EXPECT_EQ(inside.properties().ListIndex, 0);
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(ChangeInsideAnEvent, ARowRemovedInClickMovesTheIndexToWhateverLiesThere) {
    fill(4);
    list.letClickOnIndexChange(true);
    events.on("Click", [&] { list.RowsRemove(1); });
    press(cell(2, 1));
    EXPECT_EQ(columnTexts(1), "2a 3a 4a");
    EXPECT_EQ(selection(), "index=2 selected=2");
}

TEST_F(ChangeInsideAnEvent, AnEditThatTheHostOpensInItemDblClickStays) {
    fill(3);
    list.letItemAllowEdit(1, 1, true);
    click(cell(1, 1));
    events.on("ItemDblClick", [&] { list.SetEdit(2, 2); });
    list.UserControl_DblClick();
    EXPECT_EQ(inside.editor().Text(), u"2b") << "its cell is the remembered one now, and forbids another";
}

TEST_F(ChangeInsideAnEvent, RowsClearedInTheYieldOfAPressLeaveTheRestToFail) {
    fill(3);
    hover(cell(2, 1));
    desktop.onYield([&] { list.RowsClear(); });
    desktop.press();
    EXPECT_TRUE(sameLog(takenNames(), {"ItemDown", "MouseDown"}));
    EXPECT_EQ(list.RowsCount(), 0);
}

TEST_F(ChangeInsideAnEvent, APressInsideTheYieldOfAMoveRunsToItsEndFirst) {
    fill(3);
    hover(cell(1, 1));
    desktop.onYield([&] { desktop.postPress(); });
    list.UserControl_MouseMove(0, 0, cell(2, 1).x, cell(2, 1).y);
    EXPECT_TRUE(sameLog(takenNames(), {"  ItemDown", "  MouseDown"}));
    EXPECT_EQ(selection(), "index=1 selected=1");
    EXPECT_TRUE(says(inside.mouse(), "button=0")) << "the move goes on with its own button";
    EXPECT_TRUE(says(inside.header(), "pending=no"));
}

} // namespace lumtex::testing
