/// What elements are called, and what is true of them.
#include "spoken_list.h"

namespace lumtex::testing {
namespace {

using namespace accessibility;

class Words : public SpokenList {
  protected:
    std::string described(const Element& element) { return toUtf8(spoken.description(element)); }
    std::string does(const Element& element) { return toUtf8(spoken.action(element)); }
};

TEST_F(Words, AreTheTextsOfTheList) {
    addCities();
    host.name = u"cities";
    EXPECT_EQ(name(theList), "cities");
    EXPECT_EQ(name(rowElement(1)), "Lisbon");
    EXPECT_EQ(described(rowElement(1)), "Since: 1143; Country: Portugal");
    EXPECT_EQ(name(cellElement(1, 3)), "Portugal");
    EXPECT_EQ(described(cellElement(1, 3)), "Country");
    EXPECT_EQ(toUtf8(spoken.value(cellElement(1, 3))), "Portugal");
    EXPECT_EQ(name(headerElement(2)), "Since");
}

TEST_F(Words, OfARowLeaveOutWhatDoesNotShow) {
    addCities();
    list.letColumnWidth(1, 0);
    list.letItemText(2, 2, u"");
    EXPECT_EQ(name(rowElement(1)), "1143");
    EXPECT_EQ(described(rowElement(1)), "Country: Portugal");
    EXPECT_EQ(name(rowElement(2)), "Norway");
    EXPECT_EQ(described(rowElement(2)), "");
}

TEST_F(Words, OfACellWithoutTextAreItsTip) {
    addCities();
    list.letItemToolTip(1, 2, u"founded");
    EXPECT_EQ(toUtf8(spoken.help(cellElement(1, 2))), "founded");
    EXPECT_EQ(name(cellElement(1, 2)), "1143");
    list.letItemText(1, 2, u"");
    EXPECT_EQ(name(cellElement(1, 2)), "founded");
}

TEST_F(Words, OfACheckBoxAreThoseBesideIt) {
    addCities();
    list.letStyle(cCheckBoxes);
    list.letColumnCheckBoxes(2, true);
    EXPECT_EQ(name(checkBoxElement(1, 2)), "1143");
    list.letItemText(1, 2, u"");
    EXPECT_EQ(name(checkBoxElement(1, 2)), "Since");
    EXPECT_EQ(does(checkBoxElement(1, 2)), "Check");
    EXPECT_EQ(states(checkBoxElement(1, 2)), "checkable");
    list.letItemChecked(1, 2, true);
    EXPECT_EQ(states(checkBoxElement(1, 2)), "checkable checked");
    EXPECT_EQ(does(checkBoxElement(1, 2)), "Uncheck");
    list.letItemEnabled(1, 2, false);
    EXPECT_EQ(states(checkBoxElement(1, 2)), "unavailable checkable checked");
    EXPECT_EQ(does(checkBoxElement(1, 2)), "");
}

TEST_F(Words, OfRowsFollowTheSelection) {
    addCities();
    list.letMultiSelect(true);
    list.letFullRowSelect(false);
    EXPECT_TRUE(spoken.selectOnly(rowElement(2)));
    EXPECT_EQ(states(rowElement(1)), "focusable selectable multiSelectable");
    EXPECT_EQ(states(rowElement(2)), "focusable focused selectable multiSelectable selected");
    EXPECT_EQ(states(cellElement(2, 1)), "selectable selected");
    EXPECT_EQ(states(cellElement(2, 2)), "selectable");
    list.letFullRowSelect(true);
    EXPECT_EQ(states(cellElement(2, 2)), "selectable selected");
    list.letRowEnabled(3, false);
    EXPECT_EQ(states(rowElement(3)), "unavailable");
    list.letEnabled(false);
    EXPECT_EQ(states(rowElement(1)), "unavailable");
    EXPECT_EQ(states(theList), "unavailable multiSelectable");
}

TEST_F(Words, OfHeadersTellTheSort) {
    addCities();
    EXPECT_EQ(states(headerElement(1)), "");
    EXPECT_EQ(does(headerElement(1)), "Sort");
    EXPECT_EQ(does(headerElement(3)), "Press");
    list.Sort(2, cDescending);
    EXPECT_EQ(states(headerElement(2)), "sortedDown");
    EXPECT_EQ(described(headerElement(2)), "sorted, descending");
    list.Sort(2, cAscending);
    EXPECT_EQ(states(headerElement(2)), "sortedUp");
}

TEST_F(Words, OfBarsAreTheirPlace) {
    addCities();
    addRows(30);
    settle();
    list.letTopIndex(4);
    EXPECT_EQ(name(verticalBar), "Vertical");
    EXPECT_EQ(toUtf8(spoken.value(verticalBar)), "4");
    const auto range = spoken.range(verticalBar);
    ASSERT_TRUE(range);
    EXPECT_EQ(range->least, 0);
    EXPECT_EQ(range->value, 4);
    EXPECT_EQ(range->most, inside.vertical().Max());
    EXPECT_EQ(range->step, inside.vertical().SmallChange());
    EXPECT_EQ(range->page, inside.vertical().LargeChange());
    EXPECT_FALSE(spoken.range(theList));
}

TEST_F(Words, OfTheEditorAreItsColumnAndItsText) {
    addCities();
    list.SetEdit(2, 3);
    EXPECT_EQ(name(theEditor), "Country");
    EXPECT_EQ(toUtf8(spoken.value(theEditor)), "Norway");
    EXPECT_EQ(states(theEditor), "focusable focused editable");
    desktop.type(u"Sweden");
    EXPECT_EQ(toUtf8(spoken.value(theEditor)), "Sweden");
}

TEST_F(Words, OfTheProductAreInTheUsersLanguage) {
    addCities();
    list.Sort(2, cAscending);
    addRows(30);
    list.letStyle(cCheckBoxes);
    list.letColumnCheckBoxes(2, true);
    settle();
    desktop.runtime().usersLanguage = words::Language::german;
    EXPECT_EQ(name(theHeaders), "Spaltenköpfe");
    EXPECT_EQ(name(verticalBar), "Vertikal");
    EXPECT_EQ(name(spoken.child(verticalBar, 1)), "Zeile nach oben");
    EXPECT_EQ(name(spoken.child(verticalBar, 3)), "Zeile nach unten");
    EXPECT_EQ(described(headerElement(2)), "aufsteigend sortiert");
    EXPECT_EQ(does(rowElement(1)), "Auswählen");
    EXPECT_EQ(does(checkBoxElement(1, 2)), "Aktivieren");
    EXPECT_EQ(does(headerElement(1)), "Sortieren");
    EXPECT_EQ(toUtf8(spoken.keys(rowElement(1))), "Nach oben, Nach unten");
    EXPECT_EQ(toUtf8(spoken.kind(cellElement(1, 1))), "Zelle");
    EXPECT_EQ(name(rowElement(1)), "Oslo"); // the text of the list stays
}

TEST_F(Words, AskingChangesNothing) {
    addCities();
    const int paints = window().presented();
    for (const Element& element : {theList, rowElement(1), cellElement(1, 1), headerElement(1), theHeaders}) {
        spoken.name(element);
        spoken.value(element);
        spoken.description(element);
        spoken.help(element);
        spoken.kind(element);
        spoken.action(element);
        spoken.keys(element);
        spoken.states(element);
        spoken.place(element);
        spoken.navigate(element, Direction::next);
    }
    desktop.onYield([] { ADD_FAILURE() << "yields"; });
    spoken.states(rowElement(1));
    EXPECT_TRUE(events.log.empty());
    EXPECT_EQ(window().presented(), paints);
    EXPECT_EQ(reportCount(), 0U);
}

} // namespace
} // namespace lumtex::testing
