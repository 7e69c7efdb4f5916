/// What is done to the widget without eyes and mouse, and which signals its program hears of it.
#include "spoken_fixture.h"

#include <gmock/gmock.h>

namespace lumtex::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SpokenActions : public SpokenWidget {
  protected:
    SpokenActions() {
        const auto note = [this](const char* name) { return [this, name] { signals_.emplace_back(name); }; };
        QObject::connect(widget.get(), &LumtexListView::ColumnClick, note("ColumnClick"));
        QObject::connect(widget.get(), &LumtexListView::SortDone, note("SortDone"));
        QObject::connect(widget.get(), &LumtexListView::ItemCheck, note("ItemCheck"));
        QObject::connect(
            widget.get(), qOverload<int, int, bool>(&LumtexListView::ItemChecked), note("ItemChecked"));
        QObject::connect(widget.get(), &LumtexListView::ItemClick, note("ItemClick"));
        QObject::connect(widget.get(), &LumtexListView::ItemChanged, note("ItemChanged"));
        QObject::connect(widget.get(), &LumtexListView::Scroll, note("Scroll"));
    }

    static void act(QAccessibleInterface& on, const QString& name) { on.actionInterface()->doAction(name); }

    const QString press = QAccessibleActionInterface::pressAction();
    const QString toggle = QAccessibleActionInterface::toggleAction();
    const QString takeFocus = QAccessibleActionInterface::setFocusAction();
    std::vector<std::string> signals_; // "signals" is a macro of Qt
};

TEST_F(SpokenActions, PressingAHeaderSorts) {
    QAccessibleInterface& since = *headers().child(1);
    EXPECT_EQ(since.actionInterface()->actionNames(), QStringList(press));
    EXPECT_EQ(since.actionInterface()->localizedActionName(press), QStringLiteral("Sort"));
    act(since, press);
    EXPECT_THAT(signals_, ElementsAre("ColumnClick", "SortDone"));
    EXPECT_EQ(named(&row(0)), "Row Quito");
    EXPECT_EQ(since.text(QAccessible::Description), QStringLiteral("sorted, descending"));
    act(since, press);
    EXPECT_EQ(named(&row(0)), "Row Oslo");
    EXPECT_EQ(since.text(QAccessible::Description), QStringLiteral("sorted, ascending"));
}

TEST_F(SpokenActions, TogglingACheckBoxPressesIt) {
    addCheckBoxes();
    EXPECT_EQ(checkBox(1).actionInterface()->actionNames(), QStringList(toggle));
    EXPECT_EQ(checkBox(1).actionInterface()->localizedActionName(toggle), QStringLiteral("Check"));
    act(checkBox(1), toggle);
    EXPECT_THAT(signals_, ElementsAre("ItemCheck", "ItemChecked", "ItemClick"));
    EXPECT_TRUE(widget->ItemChecked(2, 2));
    EXPECT_TRUE(checkBox(1).state().checked);
    act(checkBox(1), press);
    EXPECT_TRUE(widget->ItemChecked(2, 2)) << "a box has no such action";
}

TEST_F(SpokenActions, ANewTextOfACellIsTypedIntoIt) {
    EXPECT_EQ(cell(1, 2).editableTextInterface(), nullptr);
    cell(1, 2).setText(QAccessible::Value, QStringLiteral("Norge"));
    EXPECT_EQ(widget->ItemText(2, 3), QStringLiteral("Norway")) << "it may not be edited";
    widget->setItemAllowEdit(2, 3, true);
    cell(1, 2).setText(QAccessible::Value, QStringLiteral("Norge"));
    EXPECT_EQ(widget->ItemText(2, 3), QStringLiteral("Norge"));
    ASSERT_NE(cell(1, 2).editableTextInterface(), nullptr);
    EXPECT_EQ(cell(1, 2).textInterface()->text(0, 2), QStringLiteral("No"));
    EXPECT_EQ(cell(1, 2).textInterface()->characterCount(), 5);
    cell(1, 2).editableTextInterface()->replaceText(3, 5, QStringLiteral("eg"));
    EXPECT_EQ(widget->ItemText(2, 3), QStringLiteral("Noreg"));
    cell(1, 2).editableTextInterface()->insertText(5, QStringLiteral("!"));
    cell(1, 2).editableTextInterface()->deleteText(0, 2);
    EXPECT_EQ(widget->ItemText(2, 3), QStringLiteral("reg!"));
    EXPECT_EQ(std::ranges::count(signals_, "ItemChanged"), 4);
}

TEST_F(SpokenActions, PressingARowMakesItTheCurrentOne) {
    EXPECT_EQ(row(2).actionInterface()->actionNames(), (QStringList{press, takeFocus}));
    EXPECT_EQ(row(2).actionInterface()->keyBindingsForAction(press), QStringList(QStringLiteral("Up, Down")));
    act(row(2), press);
    EXPECT_EQ(widget->RowIndex(), 3);
    EXPECT_THAT(signals_, IsEmpty()) << "as for the arrow keys";
}

TEST_F(SpokenActions, TheFocusGoesWhereItIsSent) {
    EXPECT_EQ(table().focusChild(), nullptr);
    act(table(), takeFocus);
    EXPECT_TRUE(widget->hasFocus());
    EXPECT_EQ(table().focusChild(), &table());
    EXPECT_TRUE(table().state().focused);
    act(row(1), takeFocus);
    EXPECT_EQ(table().focusChild(), &row(1));
    EXPECT_TRUE(row(1).state().focused);
    EXPECT_FALSE(table().state().focused);
    widget->clearFocus();
}

TEST_F(SpokenActions, TheValueOfABarIsItsPlace) {
    addRows(30);
    QAccessibleValueInterface* value = bar().valueInterface();
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(value->minimumValue().toInt(), 0);
    EXPECT_EQ(value->currentValue().toInt(), 0);
    value->setCurrentValue(5);
    EXPECT_EQ(widget->TopIndex(), 5);
    EXPECT_EQ(value->currentValue().toInt(), 5);
    value->setCurrentValue(QStringLiteral("far"));
    EXPECT_EQ(widget->TopIndex(), 5);
    EXPECT_EQ(value->maximumValue().toInt(), bar().valueInterface()->maximumValue().toInt());
    EXPECT_GT(value->maximumValue().toInt(), 5);
    EXPECT_EQ(row(0).valueInterface(), nullptr);
    act(*bar().child(0), press);
    EXPECT_EQ(widget->TopIndex(), 4);
}

TEST_F(SpokenActions, ADisabledRowHasNone) {
    widget->setRowEnabled(2, false);
    EXPECT_THAT(row(1).actionInterface()->actionNames(), IsEmpty());
    act(row(1), press);
    act(row(1), takeFocus);
    EXPECT_NE(widget->RowIndex(), 2);
}

} // namespace
} // namespace lumtex::testing
