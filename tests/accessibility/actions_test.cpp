/// What is done without eyes and mouse, and which events the host hears of it.
#include "spoken_list.h"

#include <gmock/gmock.h>

namespace lumtex::testing {
namespace {

using namespace accessibility;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Actions : public SpokenList {
  protected:
    Actions() { addCities(); }

    std::string selectedRows() {
        std::string all;
        for (Long row = spoken.nextSelected(0); row != 0; row = spoken.nextSelected(row))
            all += (all.empty() ? "" : ",") + std::to_string(row);
        return all;
    }
    void withCheckBoxes() {
        list.letStyle(cCheckBoxes);
        list.letColumnCheckBoxes(2, true);
        settle();
    }
    /// What the mouse does to the middle of an element.
    void click(const Element& element) {
        const std::optional<Rect> place = spoken.place(element);
        ASSERT_TRUE(place);
        desktop.move(window(),
                     static_cast<Single>((place->Left + place->Right) / 2),
                     static_cast<Single>((place->Top + place->Bottom) / 2));
        desktop.advance(std::chrono::milliseconds(2));
        events.log.clear();
        desktop.click();
    }
    /// The log without the events of the mouse itself.
    std::vector<std::string> eventsOfTheList() {
        std::vector<std::string> all;
        for (const std::string& line : events.log)
            if (line.find("Mouse") == std::string::npos && line != "Click")
                all.push_back(line);
        events.log.clear();
        return all;
    }
};

TEST_F(Actions, OfAHeaderSortLikeAClick) {
    EXPECT_TRUE(spoken.act(headerElement(2)));
    EXPECT_THAT(events.log, ElementsAre("ColumnClick Column=2", "SortDone"));
    EXPECT_EQ(states(headerElement(2)), "sortedUp");
    EXPECT_EQ(name(rowElement(1)), "Oslo");
    EXPECT_TRUE(spoken.act(headerElement(2)));
    EXPECT_EQ(states(headerElement(2)), "sortedDown");
    events.log.clear();
    EXPECT_TRUE(spoken.act(headerElement(3)));
    EXPECT_THAT(events.log, ElementsAre("ColumnClick Column=3"));
}

TEST_F(Actions, OfARowMakeItTheOnlySelectedOne) {
    list.letMultiSelect(true);
    EXPECT_TRUE(spoken.act(rowElement(3)));
    EXPECT_EQ(list.RowIndex(), 3);
    EXPECT_EQ(selectedRows(), "3");
    EXPECT_TRUE(spoken.select(rowElement(1), true));
    EXPECT_EQ(selectedRows(), "1,3");
    EXPECT_TRUE(spoken.select(rowElement(3), false));
    EXPECT_EQ(selectedRows(), "1");
    list.letMultiSelect(false);
    EXPECT_TRUE(spoken.select(rowElement(2), true));
    EXPECT_EQ(selectedRows(), "2");
    EXPECT_THAT(events.log, IsEmpty()) << "as for the arrow keys";
}

TEST_F(Actions, ScrollToTheRowTheySelect) {
    addRows(40, u"Porto");
    settle();
    EXPECT_TRUE(spoken.selectOnly(rowElement(30)));
    EXPECT_EQ(list.RowIndex(), 30);
    const std::optional<Rect> place = spoken.place(rowElement(30));
    ASSERT_TRUE(place);
    EXPECT_EQ(place->Bottom - place->Top, 20);
    EXPECT_TRUE(spoken.selectOnly(rowElement(2)));
    EXPECT_EQ(list.TopIndex(), 1);
}

TEST_F(Actions, OfACheckBoxAreThoseOfAPressOnIt) {
    withCheckBoxes();
    click(checkBoxElement(2, 2));
    const std::vector<std::string> byMouse = eventsOfTheList();
    EXPECT_TRUE(list.ItemChecked(2, 2));
    list.letItemChecked(2, 2, false);
    inside.letLastClick(-1, -1);
    EXPECT_TRUE(spoken.act(checkBoxElement(2, 2)));
    EXPECT_TRUE(list.ItemChecked(2, 2));
    EXPECT_EQ(eventsOfTheList(), byMouse);
    EXPECT_THAT(byMouse,
                ElementsAre("ItemCheck Row=2 Column=2 NewValue=True",
                            "ItemChecked Row=2 Column=2 NewValue=True",
                            "ItemDown Row=2 Column=2",
                            "ItemUp Row=2 Column=2",
                            "ItemClick Row=2 Column=2"));
}

TEST_F(Actions, OfACheckBoxCanBeRefusedByTheHost) {
    withCheckBoxes();
    events.cancelCheck = true;
    EXPECT_TRUE(spoken.act(checkBoxElement(1, 2)));
    EXPECT_FALSE(list.ItemChecked(1, 2));
}

TEST_F(Actions, OfACellArePressAndRelease) {
    list.letAllowEdit(true);
    click(cellElement(1, 3));
    const std::vector<std::string> byMouse = eventsOfTheList();
    inside.letLastClick(-1, -1);
    EXPECT_TRUE(spoken.act(cellElement(1, 3)));
    EXPECT_EQ(eventsOfTheList(), byMouse);
}

TEST_F(Actions, DoNotMindWhereTheMouseRests) {
    click(cellElement(3, 1));
    events.log.clear();
    EXPECT_TRUE(spoken.act(cellElement(1, 3)));
    EXPECT_THAT(events.log,
                ElementsAre("ItemDown Row=1 Column=3", "ItemUp Row=1 Column=3", "ItemClick Row=1 Column=3"));
}

TEST_F(Actions, OpenTheEditorOfACellThatMayBeEdited) {
    EXPECT_FALSE(spoken.edit(cellElement(2, 3)));
    list.letItemAllowEdit(2, 3, true);
    EXPECT_EQ(states(cellElement(2, 3)), "selectable editable");
    EXPECT_TRUE(spoken.act(cellElement(2, 3)));
    EXPECT_EQ(spoken.focus(), theEditor);
    EXPECT_THAT(events.log,
                ElementsAre("ItemDown Row=2 Column=3",
                            "ItemUp Row=2 Column=3",
                            "ItemClick Row=2 Column=3",
                            "DblClick",
                            "ItemDblClick Row=2 Column=3"));
}

TEST_F(Actions, WriteTextAsIfTyped) {
    list.letItemAllowEdit(2, 3, true);
    EXPECT_TRUE(spoken.setValue(cellElement(2, 3), u"Norge"));
    EXPECT_EQ(toUtf8(list.ItemText(2, 3)), "Norge");
    EXPECT_EQ(events.log.back(), "ItemChanged Row=2 Column=3 NewValue=Norge");
    EXPECT_FALSE(spoken.exists(theEditor));
    EXPECT_FALSE(spoken.setValue(cellElement(1, 3), u"Lusitania"));
    EXPECT_EQ(toUtf8(list.ItemText(1, 3)), "Portugal");
    EXPECT_FALSE(spoken.setValue(rowElement(1), u"x"));
    list.SetEdit(2, 3);
    EXPECT_TRUE(spoken.setValue(theEditor, u"Noreg"));
    EXPECT_EQ(toUtf8(list.ItemText(2, 3)), "Norge") << "until Enter";
    EXPECT_TRUE(spoken.exists(theEditor));
}

TEST_F(Actions, MoveTheBars) {
    addRows(40);
    settle();
    EXPECT_TRUE(spoken.setRange(verticalBar, 7));
    EXPECT_EQ(list.TopIndex(), 7);
    EXPECT_THAT(events.log, ElementsAre("Scroll"));
    EXPECT_TRUE(spoken.setValue(verticalBar, u"1000"));
    EXPECT_EQ(list.TopIndex(), inside.vertical().Max());
    EXPECT_FALSE(spoken.setValue(verticalBar, u"far"));
    EXPECT_TRUE(spoken.act({Kind::lowArrow}));
    EXPECT_LT(list.TopIndex(), inside.vertical().Max());
    EXPECT_FALSE(spoken.act({Kind::thumb}));
    EXPECT_FALSE(spoken.setRange(horizontalBar, 1));
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(Actions, AreNotForWhatIsDisabled) {
    list.letRowEnabled(2, false);
    EXPECT_FALSE(spoken.act(rowElement(2)));
    EXPECT_FALSE(spoken.act(cellElement(2, 1)));
    EXPECT_FALSE(spoken.select(rowElement(2), true));
    list.letEnabled(false);
    EXPECT_FALSE(spoken.act(headerElement(1)));
    EXPECT_FALSE(spoken.takeFocus(theList));
    EXPECT_THAT(events.log, IsEmpty());
}

TEST_F(Actions, GiveTheListTheKeyboard) {
    desktop.switchBack();
    EXPECT_TRUE(spoken.takeFocus(rowElement(3)));
    EXPECT_EQ(desktop.focused(), list.hwnd());
    EXPECT_EQ(list.RowIndex(), 3);
    EXPECT_EQ(spoken.focus(), rowElement(3));
}

TEST_F(Actions, OutliveAHostThatRemovesTheRow) {
    withCheckBoxes();
    for (const char* event : {"ItemCheck", "ItemChecked", "ItemDown", "ItemUp", "ItemClick"}) {
        SCOPED_TRACE(event);
        list.RowsClear();
        addRows(1, u"Lisbon,1143,Portugal");
        settle();
        inside.letLastClick(-1, -1);
        events.on(event, [&] { list.RowsClear(); });
        EXPECT_TRUE(spoken.act(checkBoxElement(1, 2)));
        EXPECT_EQ(spoken.rowCount(), 0);
        EXPECT_EQ(states(checkBoxElement(1, 2)), "gone");
        events.on(event, [] {});
    }
}

TEST_F(Actions, OutliveAHostThatEndsTheList) {
    for (const std::string event : {"ItemCheck", "ItemDown", "ItemClick", "ItemDblClick", "ColumnClick"}) {
        SCOPED_TRACE(event);
        RecordingEvents heard;
        auto* ending = new lmListView(desktop, host, heard);
        ending->UserControl_InitProperties();
        ending->letStyle(cCheckBoxes);
        ending->ColumnsAdd(u"City");
        ending->letColumnCheckBoxes(1, true);
        ending->RowsAdd(Long{-1}, u",", u"Lisbon");
        ending->letItemAllowEdit(1, 1, true);
        AccessibleList orphan(*ending);
        heard.on(event, [&] {
            delete ending;
            ending = nullptr;
        });
        if (event == "ItemCheck")
            orphan.act(checkBoxElement(1, 1));
        else if (event == "ColumnClick")
            orphan.act(headerElement(1));
        else
            orphan.act(cellElement(1, 1));
        EXPECT_EQ(ending, nullptr);
        EXPECT_TRUE(orphan.hasEnded());
    }
}

} // namespace
} // namespace lumtex::testing
