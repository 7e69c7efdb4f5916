/// What the widget tells those who cannot see it.
#include "spoken_fixture.h"

#include <QTest>

#include <gmock/gmock.h>

namespace lumtex::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using SpokenEvents = SpokenWidget;

TEST_F(SpokenEvents, TheFocusIsThatOfTheListAndOfItsRows) {
    widget->activateWindow();
    EXPECT_THAT(toldOf("Focus", [&] { widget->setFocus(); }), ElementsAre("Focus Table cities"));
    EXPECT_THAT(toldOf("Focus", [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down); }),
                ElementsAre("Focus Row Lisbon"));
    EXPECT_THAT(toldOf("Focus", [&] { widget->setListIndex(2); }), ElementsAre("Focus Row Quito"));
    widget->clearFocus();
    EXPECT_THAT(toldOf("Focus", [&] { widget->setListIndex(1); }), IsEmpty()) << "it has not the keyboard";
    EXPECT_THAT(toldOf("Focus", [&] { widget->setFocus(); }), ElementsAre("Focus Row Oslo"));
    widget->clearFocus();
}

TEST_F(SpokenEvents, TheEditorHasTheFocusWhileItIsOpen) {
    widget->activateWindow();
    widget->setItemAllowEdit(2, 3, true);
    widget->setListIndex(1);
    widget->setFocus();
    const QString press = QAccessibleActionInterface::pressAction();
    EXPECT_THAT(toldOf("Focus", [&] { cell(1, 2).actionInterface()->doAction(press); }),
                ElementsAre("Focus EditableText Country"));
    const std::vector<std::string> closing =
        toldOf([&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); });
    EXPECT_EQ(std::ranges::count(closing, "Focus Row Oslo"), 1);
    widget->clearFocus();
}

TEST_F(SpokenEvents, TheSelectionIsTold) {
    widget->setMultiSelect(true);
    widget->setListIndex(0);
    widget->Redraw();
    EXPECT_THAT(toldOf([&] { table().tableInterface()->selectRow(1); }), Contains("SelectionAdd Row Oslo"));
    EXPECT_THAT(toldOf([&] { table().tableInterface()->unselectRow(1); }),
                Contains("SelectionRemove Row Oslo"));
    EXPECT_THAT(
        toldOf([&] { row(2).actionInterface()->doAction(QAccessibleActionInterface::pressAction()); }),
        Contains("Selection Row Quito"));
}

TEST_F(SpokenEvents, TextsAndMarksAreToldAsTheyShow) {
    addCheckBoxes();
    EXPECT_THAT(toldOf([&] {
                    widget->setItemText(2, 3, QStringLiteral("Norge"));
                    widget->Redraw();
                }),
                ElementsAre("NameChanged Cell Norge"));
    EXPECT_THAT(
        toldOf([&] { checkBox(1).actionInterface()->doAction(QAccessibleActionInterface::toggleAction()); }),
        Contains("StateChanged CheckBox 1048"));
    EXPECT_THAT(toldOf([&] { widget->setEnabled(false); }), Contains("StateChanged Table cities"));
}

TEST_F(SpokenEvents, RowsComeAndGoAtTheEnd) {
    EXPECT_THAT(
        toldOf("TableModelChanged",
               [&] { widget->RowsAdd(1, QStringLiteral(","), QStringLiteral("Porto,868,Portugal")); }),
        ElementsAre("TableModelChanged Table cities rows in 3-3",
                    "TableModelChanged Table cities changed 0-2"));
    EXPECT_THAT(toldOf("TableModelChanged", [&] { widget->RowsRemove(1); }),
                ElementsAre("TableModelChanged Table cities rows out 3-3",
                            "TableModelChanged Table cities changed 0-2"));
    EXPECT_THAT(toldOf("TableModelChanged", [&] { widget->RowsClear(); }),
                ElementsAre("TableModelChanged Table cities rows out 0-2"));
}

TEST_F(SpokenEvents, ManyRowsAreToldOfOnce) {
    EXPECT_THAT(toldOf("TableModelChanged", [&] { addRows(1000); }),
                ElementsAre("TableModelChanged Table cities rows in 3-1002",
                            "TableModelChanged Table cities changed 0-2"));
}

TEST_F(SpokenEvents, TheOrderAndTheColumnsAreTold) {
    EXPECT_THAT(toldOf([&] { headers().child(1)->actionInterface()->doAction(QStringLiteral("Press")); }),
                ElementsAre("TableModelChanged Table cities reset", "DescriptionChanged ColumnHeader Since"));
    EXPECT_THAT(toldOf("TableModelChanged", [&] { widget->ColumnsAdd(QStringLiteral("Mayor")); }),
                ElementsAre("TableModelChanged Table cities reset"));
    EXPECT_THAT(toldOf([&] {
                    widget->setColumnText(1, QStringLiteral("Town"));
                    widget->Redraw();
                }),
                ElementsAre("NameChanged ColumnHeader Town"));
}

TEST_F(SpokenEvents, BarsTellOfTheirPlaceAndWhetherTheyAreThere) {
    EXPECT_THAT(toldOf([&] { addRows(30); }), Contains("ObjectShow ScrollBar Vertical"));
    EXPECT_EQ(named(&bar()), "ScrollBar Vertical");
    EXPECT_THAT(toldOf([&] { bar().valueInterface()->setCurrentValue(7); }),
                ElementsAre("ValueChanged ScrollBar Vertical 7", "VisibleDataChanged Table cities"));
    EXPECT_THAT(toldOf([&] {
                    widget->RowsClear();
                    settle();
                }),
                Contains("ObjectHide ScrollBar"));
}

TEST_F(SpokenEvents, NothingIsToldWhileNobodyAsks) {
    switchAccessibility(false);
    EXPECT_THAT(toldOf([&] {
                    widget->RowsAdd(-1, QStringLiteral(","), QStringLiteral("Porto,868,Portugal"));
                    widget->setListIndex(1);
                    widget->Redraw();
                }),
                IsEmpty());
    switchAccessibility(true);
    EXPECT_THAT(toldOf([&] {
                    widget->setItemText(4, 1, QStringLiteral("Oporto"));
                    widget->Redraw();
                }),
                ElementsAre("NameChanged Cell Oporto"));
}

} // namespace
} // namespace lumtex::testing
