#include "moving_page.h"

#include "list_texts.h"
#include "sample_rows.h"

#include <QCheckBox>

namespace lumtex::gallery {

using namespace Qt::StringLiterals;

MovingPage::MovingPage()
    : Page(u"Moving rows"_s,
           u"Drag the current row: a line marks where it would go, and the cells of the two rows change "
           u"places. Each click "
           "moves cells too, of the row behind the current one."_s) {
    auto* moves = new QCheckBox(u"Rows can be &moved"_s);
    moves->setChecked(true);
    connect(moves, &QCheckBox::toggled, this, [this](bool on) { list().setAllowItemMoving(on); });
    rows().addWidget(moves);
    rows().addWidget(addList(), 1);
}

void MovingPage::fill() {
    constexpr int count = 30;
    const PaintOnce once(list());
    addColumn(list(), u"Place"_s, 60, LumtexListView::cColumnRight);
    addColumn(list(), u"Name"_s, 180);
    addColumn(list(), u"City"_s, 120);
    for (int i = 1; i <= count; ++i)
        addRow(list(), {QString::number(i), sampleRow(i).name, sampleRow(i).city});
    list().setAllowItemMoving(true);
    list().setListIndex(1);
}

} // namespace lumtex::gallery
