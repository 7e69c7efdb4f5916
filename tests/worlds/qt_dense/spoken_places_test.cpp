/// Where the elements of a widget are to those who cannot see it, on a dense screen.
#include "widget/widget_fixture.h"

#include <QAccessible>

namespace lumtex::testing {

namespace {

class SpokenPlaces : public WidgetTest {
  protected:
    SpokenPlaces() {
        widget->setRowsDynamic(false);
        widget->setRowHeight(300);
        widget->setBorderVisible(false);
        widget->resize(300, 200);
        fill(*widget);
        widget->CheckScroll();
        widget->Redraw();
        widget->show();
        QCoreApplication::processEvents();
    }

    QAccessibleInterface& table() { return *QAccessible::queryAccessibleInterface(widget.get()); }
    QAccessibleInterface& cell(int row, int column) { return *table().tableInterface()->cellAt(row, column); }
};

TEST_F(SpokenPlaces, AreUnitsThatNoTwoElementsShare) {
    const QRect first = cell(0, 0).rect();
    const QRect below = cell(1, 0).rect();
    const QRect beside = cell(0, 1).rect();
    EXPECT_EQ(below.top(), first.bottom() + 1);
    EXPECT_EQ(beside.left(), first.right() + 1);
    const int pixels = 2 * 30; // rows of 300 twips at 144 pixels an inch
    EXPECT_EQ(first.height() + below.height(), pixels * 2 / 3);
    EXPECT_EQ(first.left(), widget->mapToGlobal(QPoint(0, 0)).x());
}

TEST_F(SpokenPlaces, LeadBackToTheirElements) {
    for (int row = 0; row < 2; ++row)
        for (int column = 0; column < 2; ++column) {
            const QRect place = cell(row, column).rect();
            for (const QPoint at : {place.topLeft(), place.center(), place.bottomRight()})
                EXPECT_EQ(table().childAt(at.x(), at.y()), &cell(row, column)) << row << "," << column;
        }
}

} // namespace
} // namespace lumtex::testing
