/// What the list tells of its changes.
#include "platform/keys.h"
#include "spoken_list.h"

#include <gmock/gmock.h>

namespace lumtex::testing {
namespace {

using namespace accessibility;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Changes : public SpokenList {
  protected:
    Changes() {
        addCities();
        spoken.selectOnly(rowElement(1));
        list.window().setFocus();
        listen();
    }
};

TEST_F(Changes, OfTheCurrentRowAreFocusAndSelection) {
    EXPECT_THAT(toldOf([&] { desktop.key(keys::down); }), ElementsAre("focus row 2", "selected row 2"));
    EXPECT_THAT(toldOf([&] {
                    list.letListIndex(-1);
                    list.Redraw();
                }),
                ElementsAre("focus list", "selectionRemoved row 2"));
}

TEST_F(Changes, OfSeveralRowsAreToldOneByOneOrTogether) {
    list.letMultiSelect(true);
    EXPECT_THAT(toldOf([&] { list.letRowSelected(3, true); }), ElementsAre("selectionAdded row 3"));
    EXPECT_THAT(toldOf([&] { list.letRowSelected(3, false); }), ElementsAre("selectionRemoved row 3"));
    list.letAutoRedraw(false);
    EXPECT_THAT(toldOf([&] {
                    list.letRowSelected(2, true);
                    list.letRowSelected(3, true);
                }),
                IsEmpty())
        << "told when it shows";
    EXPECT_THAT(toldOf([&] { list.Redraw(); }), ElementsAre("selectionChanged list"));
}

TEST_F(Changes, OfRowsAreCounted) {
    EXPECT_THAT(toldOf([&] { list.RowsAdd(Long{-1}, u",", u"Porto"); }), ElementsAre("rowsAdded list 1"));
    EXPECT_THAT(toldOf([&] { list.RowsRemove(2); }), ElementsAre("rowsRemoved list 1"));
    EXPECT_THAT(toldOf([&] { list.RowsClear(); }), ElementsAre("rowsRemoved list 3", "focus list"));
    EXPECT_THAT(toldOf([&] { list.ColumnsClear(); }), ElementsAre("columnsChanged list", "hidden headers"));
}

TEST_F(Changes, OfTextsAndMarksNameTheirCell) {
    EXPECT_THAT(toldOf([&] { list.letItemText(2, 3, u"Norge"); }), ElementsAre("name cell 2,3"));
    EXPECT_THAT(toldOf([&] { list.letColumnText(2, u"Founded"); }), ElementsAre("name header 2"));
    list.letStyle(cCheckBoxes);
    list.letColumnCheckBoxes(2, true);
    EXPECT_THAT(toldOf([&] { list.letItemChecked(1, 2, true); }), ElementsAre("state box 1,2"));
    EXPECT_THAT(toldOf([&] { list.letItemChecked(1, 1, true); }), IsEmpty()) << "it has no box";
    EXPECT_THAT(toldOf([&] { list.letItemForeColor(1, 1, 255); }), IsEmpty());
}

TEST_F(Changes, OfManyCellsAreOne) {
    for (int i = 0; i < 5; ++i)
        list.RowsAdd(Long{-1}, u",", u"Porto,868,Portugal");
    list.letAutoRedraw(false);
    EXPECT_THAT(toldOf([&] {
                    for (Long row = 1; row <= 6; ++row)
                        for (Long column = 1; column <= 3; ++column)
                            list.letItemText(row, column, u"?");
                    list.Redraw();
                }),
                ElementsAre("contents list"));
}

TEST_F(Changes, OfTheOrderNameTheColumn) {
    EXPECT_THAT(toldOf([&] { spoken.act(headerElement(2)); }), ElementsAre("sorted header 2"));
    EXPECT_THAT(toldOf([&] { list.Sort(-1); }), ElementsAre("sorted list"));
}

TEST_F(Changes, OfThePlaceNameTheBar) {
    addRows(40, u"Porto");
    EXPECT_THAT(toldOf([&] { list.letTopIndex(3); }), ElementsAre("scrolled vertical bar"));
    list.letColumnWidth(3, 6000);
    EXPECT_THAT(toldOf([&] { list.CheckScroll(); }), ElementsAre("shown horizontal bar"));
    EXPECT_THAT(toldOf([&] { spoken.setRange(horizontalBar, 20); }), ElementsAre("scrolled horizontal bar"));
}

TEST_F(Changes, OfARowThatComesIntoViewAreItsSelection) {
    addRows(40, u"Porto");
    EXPECT_THAT(toldOf([&] { list.letRowIndex(40); }),
                ElementsAre("scrolled vertical bar", "focus row 40", "selected row 40"));
    EXPECT_THAT(toldOf([&] { list.letTopIndex(0); }), ElementsAre("scrolled vertical bar"));
    EXPECT_THAT(toldOf([&] { list.letTopIndex(39); }), ElementsAre("scrolled vertical bar"));
    list.letAutoRedraw(false);
    list.letRowIndex(5);
    EXPECT_THAT(toldOf([&] { list.Redraw(); }), ElementsAre("selected row 5"))
        << "shown and selected at once";
}

TEST_F(Changes, OfTheEditorMoveTheFocus) {
    EXPECT_THAT(toldOf([&] { list.SetEdit(2, 3); }), ElementsAre("shown editor", "focus editor"));
    desktop.type(u"Norge");
    EXPECT_THAT(toldOf([&] { desktop.key(keys::enter); }),
                ElementsAre("name cell 2,3", "hidden editor", "focus row 1"));
}

TEST_F(Changes, OfTheListItselfAreStates) {
    EXPECT_THAT(toldOf([&] { list.letEnabled(false); }), ElementsAre("state list"));
}

TEST_F(Changes, AreToldBeforeHostCodeRuns) {
    std::vector<std::string> atEvent;
    events.on("ItemDown", [&] { atEvent = told; });
    EXPECT_THAT(toldOf([&] { spoken.act(cellElement(3, 1)); }), ElementsAre("focus row 3", "selected row 3"));
    EXPECT_THAT(atEvent, ElementsAre("focus row 3", "selected row 3"));
}

TEST_F(Changes, LeaveEventsAndPaintsAsTheyAre) {
    const auto session = [&] {
        events.log.clear();
        const int before = window().presented();
        desktop.key(keys::down);
        spoken.act(headerElement(1));
        list.letItemText(1, 1, u"Lisboa");
        list.RowsAdd(Long{-1}, u",", u"Porto");
        list.RowsRemove(4);
        return std::pair(events.log, window().presented() - before);
    };
    const auto heard = session();
    spoken.listen(nullptr);
    const auto unheard = session();
    EXPECT_EQ(heard, unheard);
}

TEST_F(Changes, StopWithTheListener) {
    spoken.listen(nullptr);
    EXPECT_THAT(toldOf([&] { desktop.key(keys::down); }), IsEmpty());
}

TEST_F(Changes, CanBeMadeByTheListener) {
    int calls = 0;
    spoken.listen([&](const Change& change) {
        ++calls;
        told.push_back(inWords(change));
        if (change.kind == ChangeKind::rowsAdded && list.RowsCount() < 6)
            list.RowsAdd(Long{-1}, u",", u"Porto");
    });
    EXPECT_THAT(toldOf([&] { list.RowsAdd(Long{-1}, u",", u"Porto"); }),
                ElementsAre("rowsAdded list 1", "rowsAdded list 1", "rowsAdded list 1"));
    spoken.listen([&](const Change& /*change*/) {
        ++calls;
        list.letItemText(1, 1, list.ItemText(1, 1) + u"!");
        list.Redraw();
    });
    calls = 0;
    list.letItemText(1, 1, u"Lisboa");
    EXPECT_LE(calls, 64) << "a listener that never ends the talk is left";
    EXPECT_GE(calls, 2);
}

TEST_F(Changes, OutliveAListenerThatGoes) {
    auto second = std::make_unique<AccessibleList>(list);
    second->listen([&](const Change& /*change*/) { second.reset(); });
    desktop.key(keys::down);
    EXPECT_EQ(second, nullptr);
    desktop.key(keys::down);
    EXPECT_EQ(list.RowIndex(), 3);
}

TEST_F(Changes, OutliveAListenerThatEndsTheList) {
    auto* ending = new lmListView(desktop, host, events);
    ending->UserControl_InitProperties();
    ending->ColumnsAdd(u"City");
    AccessibleList orphan(*ending);
    int calls = 0;
    orphan.listen([&](const Change& /*change*/) {
        ++calls;
        delete ending;
    });
    ending->RowsAdd(Long{-1}, u",", u"Lisbon");
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(orphan.hasEnded());
}

TEST_F(Changes, OutliveAListenerThatThrows) {
    spoken.listen([](const Change& /*change*/) { throw std::runtime_error("deaf"); });
    desktop.key(keys::down);
    EXPECT_EQ(list.RowIndex(), 2);
    EXPECT_EQ(reportCount(), 0U);
}

} // namespace
} // namespace lumtex::testing
