/// What those who cannot see the widget find in it.
#include "spoken_fixture.h"

#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <gmock/gmock.h>

namespace lumtex::testing {
namespace {

using ::testing::ElementsAre;

class SpokenTree : public SpokenWidget {
  protected:
    /// One line an element, further in below its parent.
    static void read(QAccessibleInterface& from, const std::string& indent, std::vector<std::string>& lines) {
        std::string line = indent + named(&from);
        if (const QString value = from.text(QAccessible::Value); !value.isEmpty())
            line += " =" + value.toStdString();
        if (const QString words = from.text(QAccessible::Description); !words.isEmpty())
            line += " (" + words.toStdString() + ")";
        lines.push_back(line);
        for (int i = 0; i < from.childCount(); ++i) {
            QAccessibleInterface* child = from.child(i);
            ASSERT_NE(child, nullptr);
            EXPECT_EQ(child->parent(), &from);
            EXPECT_EQ(from.indexOfChild(child), i);
            read(*child, indent + " ", lines);
        }
    }
    std::vector<std::string> tree() {
        std::vector<std::string> lines;
        read(table(), "", lines);
        return lines;
    }
    QAccessibleInterface* childAtMiddle(QAccessibleInterface& of) {
        const QPoint at = of.rect().center();
        return table().childAt(at.x(), at.y());
    }
};

TEST_F(SpokenTree, IsOneTableOfRowsAndHeaders) {
    EXPECT_THAT(tree(),
                ElementsAre("Table cities",
                            " Row Lisbon (Since: 1143; Country: Portugal)",
                            "  Cell Lisbon =Lisbon (City)",
                            "  Cell 1143 =1143 (Since)",
                            "  Cell Portugal =Portugal (Country)",
                            " Row Oslo (Since: 1048; Country: Norway)",
                            "  Cell Oslo =Oslo (City)",
                            "  Cell 1048 =1048 (Since)",
                            "  Cell Norway =Norway (Country)",
                            " Row Quito (Since: 1534; Country: Ecuador)",
                            "  Cell Quito =Quito (City)",
                            "  Cell 1534 =1534 (Since)",
                            "  Cell Ecuador =Ecuador (Country)",
                            " Grouping Headers",
                            "  ColumnHeader City",
                            "  ColumnHeader Since",
                            "  ColumnHeader Country"));
}

TEST_F(SpokenTree, IsCalledAsTheProgramCallsIt) {
    widget->setAccessibleName(QStringLiteral("Capitals"));
    widget->setAccessibleDescription(QStringLiteral("of three countries"));
    EXPECT_EQ(table().text(QAccessible::Name), QStringLiteral("Capitals"));
    EXPECT_EQ(table().text(QAccessible::Description), QStringLiteral("of three countries"));
}

TEST_F(SpokenTree, LiesBelowTheWindowThatTheWidgetLiesIn) {
    QWidget form;
    auto* layout = new QVBoxLayout(&form);
    layout->addWidget(widget.get());
    form.show();
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(&form);
    EXPECT_EQ(table().parent(), window);
    EXPECT_EQ(window->indexOfChild(&table()), 0);
    EXPECT_EQ(row(0).window(), form.windowHandle());
    widget->setParent(nullptr);
}

TEST_F(SpokenTree, HasBarsAndCheckBoxesWhereTheyAre) {
    addCheckBoxes();
    addRows(30);
    EXPECT_EQ(named(&checkBox(1)), "CheckBox 1048");
    EXPECT_EQ(named(&bar()), "ScrollBar Vertical");
    std::vector<std::string> parts;
    for (int i = 0; i < bar().childCount(); ++i)
        parts.push_back(named(bar().child(i)));
    EXPECT_THAT(parts, ElementsAre("Button Line up", "Indicator Position", "Button Line down"));
}

TEST_F(SpokenTree, StatesFollowTheList) {
    addCheckBoxes();
    widget->setMultiSelect(true);
    widget->setFullRowSelect(false);
    widget->setItemChecked(1, 2, true);
    widget->setItemAllowEdit(2, 1, true);
    widget->setRowEnabled(3, false);
    widget->setRowSelected(1, true);
    widget->setColumnWidth(3, 0);
    settle();
    EXPECT_EQ(inWords(table().state()), "focusable multiSelectable");
    EXPECT_EQ(inWords(row(0).state()), "focusable selectable multiSelectable selected");
    EXPECT_EQ(inWords(cell(0, 0).state()), "selectable selected readOnly");
    EXPECT_EQ(inWords(cell(0, 1).state()), "selectable checkable checked readOnly");
    EXPECT_EQ(inWords(checkBox(0).state()), "checkable checked");
    EXPECT_EQ(inWords(cell(1, 0).state()), "selectable editable");
    EXPECT_EQ(inWords(row(2).state()), "disabled");
    EXPECT_EQ(inWords(cell(0, 2).state()), "invisible selectable readOnly");
    addRows(30);
    EXPECT_EQ(inWords(row(25).state()), "offscreen focusable selectable multiSelectable");
    widget->setEnabled(false);
    EXPECT_EQ(inWords(table().state()), "disabled multiSelectable");
}

TEST_F(SpokenTree, PlacesAreThoseOfTheScreen) {
    widget->move(40, 30);
    QCoreApplication::processEvents();
    const QPoint corner = widget->mapToGlobal(QPoint(0, 0));
    const int top = headers().rect().height();
    ASSERT_GT(top, 0);
    EXPECT_EQ(table().rect(), QRect(corner, QSize(300, 200)));
    EXPECT_EQ(headers().child(1)->rect(), QRect(corner + QPoint(100, 0), QSize(60, top)));
    EXPECT_EQ(cell(1, 2).rect(), QRect(corner + QPoint(160, top + 20), QSize(120, 20)));
    EXPECT_EQ(row(2).rect(), QRect(corner + QPoint(0, top + 40), QSize(280, 20)));
    EXPECT_EQ(named(table().childAt(corner.x() + 290, corner.y() + 190)), "nobody");
    EXPECT_EQ(named(childAtMiddle(cell(1, 2))), "Cell Norway");
    EXPECT_EQ(named(childAtMiddle(*headers().child(0))), "ColumnHeader City");
    const QPoint middle = cell(1, 2).rect().center();
    EXPECT_EQ(row(1).childAt(middle.x(), middle.y()), &cell(1, 2));
    EXPECT_EQ(row(0).childAt(middle.x(), middle.y()), nullptr);
    EXPECT_EQ(cell(1, 2).childAt(middle.x(), middle.y()), nullptr);
}

TEST_F(SpokenTree, WhatIsOutOfViewHasNoPlace) {
    addRows(30);
    EXPECT_TRUE(row(25).rect().isEmpty());
    EXPECT_TRUE(cell(25, 0).rect().isEmpty());
    EXPECT_EQ(named(childAtMiddle(*bar().child(2))), "Button Line down");
}

TEST_F(SpokenTree, TheTableGivesCellsByRowAndColumn) {
    QAccessibleTableInterface* cells = table().tableInterface();
    EXPECT_EQ(cells->rowCount(), 3);
    EXPECT_EQ(cells->columnCount(), 3);
    EXPECT_EQ(cells->columnDescription(2), QStringLiteral("Country"));
    EXPECT_EQ(cells->rowDescription(1), QStringLiteral("Oslo"));
    EXPECT_EQ(cells->cellAt(3, 0), nullptr);
    EXPECT_EQ(cells->cellAt(0, -1), nullptr);
    EXPECT_EQ(cells->cellAt(1, 2), row(1).child(2)) << "the same element has one interface";
    QAccessibleTableCellInterface* norway = cell(1, 2).tableCellInterface();
    EXPECT_EQ(norway->rowIndex(), 1);
    EXPECT_EQ(norway->columnIndex(), 2);
    EXPECT_EQ(norway->table(), &table());
    ASSERT_EQ(norway->columnHeaderCells().size(), 1);
    EXPECT_EQ(named(norway->columnHeaderCells().at(0)), "ColumnHeader Country");
    widget->setHideColumnHeaders(true);
    EXPECT_TRUE(cell(1, 2).tableCellInterface()->columnHeaderCells().isEmpty());
}

TEST_F(SpokenTree, TheTableTellsAndTakesTheSelection) {
    widget->setMultiSelect(true);
    widget->setFullRowSelect(true);
    QAccessibleTableInterface* cells = table().tableInterface();
    EXPECT_TRUE(cells->selectRow(0));
    EXPECT_TRUE(cells->selectRow(2));
    EXPECT_EQ(cells->selectedRows(), (QList<int>{0, 2}));
    EXPECT_EQ(cells->selectedCellCount(), 6);
    EXPECT_EQ(named(cells->selectedCells().at(3)), "Cell Quito");
    EXPECT_TRUE(cell(2, 1).tableCellInterface()->isSelected());
    EXPECT_TRUE(cells->unselectRow(0));
    EXPECT_FALSE(cells->isRowSelected(0));
    EXPECT_TRUE(cells->isRowSelected(2));
    EXPECT_EQ(cells->selectedRowCount(), 1);
    EXPECT_FALSE(cells->selectColumn(0));
    EXPECT_FALSE(cells->selectRow(3));
}

TEST_F(SpokenTree, OfAMillionRowsHasEachAtOnce) {
    addRows(1'000'000 - 3);
    EXPECT_EQ(table().childCount(), 1'000'000 + 2);
    EXPECT_EQ(table().tableInterface()->rowCount(), 1'000'000);
    EXPECT_EQ(named(&row(999'999)), "Row Porto");
    EXPECT_EQ(named(&cell(500'000, 1)), "Cell 868");
    EXPECT_EQ(table().indexOfChild(&row(999'999)), 999'999);
}

TEST_F(SpokenTree, WidgetsOverCellsAreThereToo) {
    QPushButton button(QStringLiteral("Rate"));
    EXPECT_EQ(table().childCount(), 4);
    widget->setItemObject(1, 3, &button);
    settle();
    ASSERT_EQ(table().childCount(), 5);
    QAccessibleInterface* group = table().child(4);
    EXPECT_EQ(named(group), "Grouping Widgets");
    EXPECT_EQ(group->parent(), &table());
    EXPECT_EQ(table().indexOfChild(group), 4);
    ASSERT_EQ(group->childCount(), 1);
    QAccessibleInterface* rate = group->child(0);
    EXPECT_EQ(named(rate), "Button Rate");
    EXPECT_EQ(rate->parent(), group);
    EXPECT_EQ(group->indexOfChild(rate), 0);
    EXPECT_EQ(childAtMiddle(*rate), group);
    button.setFocus();
    EXPECT_EQ(table().focusChild(), rate);
    widget->RowsClear();
    settle();
}

TEST_F(SpokenTree, TheOpenEditorIsAFieldInIt) {
    widget->setItemAllowEdit(2, 3, true);
    cell(1, 2).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    ASSERT_EQ(table().childCount(), 5);
    QAccessibleInterface* editor = table().child(4);
    EXPECT_EQ(named(editor), "EditableText Country");
    EXPECT_EQ(editor->parent(), &table());
    EXPECT_EQ(table().indexOfChild(editor), 4);
    EXPECT_EQ(table().focusChild(), editor);
    EXPECT_NE(dynamic_cast<QLineEdit*>(editor->object()), nullptr);
    EXPECT_TRUE(editor->state().focused);
    EXPECT_TRUE(editor->state().editable);
    EXPECT_EQ(childAtMiddle(*editor), editor);

    QAccessibleTextInterface* text = editor->textInterface();
    EXPECT_EQ(text->text(0, text->characterCount()), QStringLiteral("Norway"));
    text->setSelection(0, 1, 3);
    int start = 0;
    int end = 0;
    text->selection(0, &start, &end);
    EXPECT_EQ(text->selectionCount(), 1);
    EXPECT_EQ(text->text(start, end), QStringLiteral("or"));
    EXPECT_EQ(text->offsetAtPoint(text->characterRect(4).center()), 4);
    editor->editableTextInterface()->replaceText(4, 6, QStringLiteral("ge"));
    EXPECT_EQ(editor->text(QAccessible::Value), QStringLiteral("Norwge"));
    EXPECT_EQ(widget->ItemText(2, 3), QStringLiteral("Norway")) << "nobody has pressed Enter";
}

} // namespace
} // namespace lumtex::testing
