/// What becomes of interfaces when rows, lists and widgets go.
#include "spoken_fixture.h"

#include <gmock/gmock.h>

namespace lumtex::testing {
namespace {

using SpokenLife = SpokenWidget;

TEST_F(SpokenLife, RowsTakeTheirInterfacesAlong) {
    const QAccessible::Id last = QAccessible::uniqueId(&row(2));
    const QAccessible::Id inLast = QAccessible::uniqueId(&cell(2, 1));
    const QAccessible::Id first = QAccessible::uniqueId(&cell(0, 0));
    widget->RowsRemove(1);
    EXPECT_EQ(QAccessible::accessibleInterface(last), nullptr);
    EXPECT_EQ(QAccessible::accessibleInterface(inLast), nullptr);
    ASSERT_NE(QAccessible::accessibleInterface(first), nullptr);
    EXPECT_EQ(named(QAccessible::accessibleInterface(first)), "Cell Oslo") << "whichever stands first";
}

TEST_F(SpokenLife, ColumnsAndBarsTakeTheirInterfacesAlong) {
    addRows(30);
    const QAccessible::Id country = QAccessible::uniqueId(headers().child(2));
    const QAccessible::Id arrow = QAccessible::uniqueId(bar().child(0));
    widget->RowsClear();
    settle();
    EXPECT_EQ(QAccessible::accessibleInterface(arrow), nullptr);
    EXPECT_NE(QAccessible::accessibleInterface(country), nullptr);
    widget->ColumnsClear();
    EXPECT_EQ(QAccessible::accessibleInterface(country), nullptr);
}

TEST_F(SpokenLife, OfWhatIsNotThereAnInterfaceSaysNothing) {
    switchAccessibility(false);
    QAccessibleInterface& quito = row(2);
    widget->RowsClear();
    EXPECT_FALSE(quito.isValid());
    EXPECT_TRUE(quito.state().invalid);
    EXPECT_EQ(quito.text(QAccessible::Name), QString());
    EXPECT_EQ(quito.childCount(), 0);
    EXPECT_EQ(quito.parent(), &table());
    EXPECT_TRUE(quito.actionInterface()->actionNames().isEmpty());
}

TEST_F(SpokenLife, AWidgetTakesAllAlong) {
    const QAccessible::Id whole = QAccessible::uniqueId(&table());
    const QAccessible::Id oslo = QAccessible::uniqueId(&row(1));
    const QAccessible::Id box = QAccessible::uniqueId(headers().child(0));
    widget.reset();
    EXPECT_EQ(QAccessible::accessibleInterface(whole), nullptr);
    EXPECT_EQ(QAccessible::accessibleInterface(oslo), nullptr);
    EXPECT_EQ(QAccessible::accessibleInterface(box), nullptr);
}

TEST_F(SpokenLife, AnActMayEndTheWidget) {
    addCheckBoxes();
    widget->setItemAllowEdit(1, 1, true);
    QObject::connect(widget.get(), &LumtexListView::ItemCheck, [this] { widget.reset(); });
    checkBox(1).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(widget, nullptr);
}

TEST_F(SpokenLife, AnActMayTakeItsElementAway) {
    QObject::connect(widget.get(), &LumtexListView::ColumnClick, [this] { widget->ColumnsClear(); });
    headers().child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(table().tableInterface()->columnCount(), 0);
    QObject::connect(widget.get(), &LumtexListView::Scroll, [this] { widget.reset(); });
    addCities();
    addRows(30);
    bar().valueInterface()->setCurrentValue(3);
    EXPECT_EQ(widget, nullptr);
}

TEST_F(SpokenLife, WhoeverHearsOfAChangeMayEndTheWidget) {
    static std::unique_ptr<LumtexListView> ending;
    ending = std::move(widget);
    const auto end = [](QAccessibleEvent* event) {
        if (event->type() == QAccessible::TableModelChanged)
            ending.reset();
    };
    QAccessible::installUpdateHandler(end);
    ending->RowsClear();
    EXPECT_EQ(ending, nullptr);
}

TEST_F(SpokenLife, AListMadeAnewIsSpokenOfAnew) {
    const QAccessible::Id oslo = QAccessible::uniqueId(&row(1));
    widget->setDesignView(true);
    EXPECT_EQ(QAccessible::accessibleInterface(oslo), nullptr);
    EXPECT_TRUE(table().isValid());
    widget->setDesignView(false);
    addCities();
    EXPECT_EQ(named(&row(1)), "Row Oslo");
}

} // namespace
} // namespace lumtex::testing
