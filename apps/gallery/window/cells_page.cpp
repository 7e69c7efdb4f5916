#include "cells_page.h"

#include "icon_pixmaps.h"
#include "list_texts.h"

#include <QProgressBar>
#include <QPushButton>
#include <array>

namespace lumtex::gallery {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array tasks{u"Bold as a headline",
                           u"Italic as an aside",
                           u"Underlined as a link",
                           u"Struck out as done",
                           u"Larger than the others",
                           u"In a colour of its own",
                           u"On a ground of its own",
                           u"Disabled",
                           u"To be edited: press twice",
                           u"Icon in front of a text",
                           u"With a tip: wait here"};

enum Columns { checkColumn = 1, taskColumn, amountColumn, progressColumn, buttonColumn };

/// What its name says.
void dress(LumtexListView& list, int row) {
    switch (row) {
    case 1:
        return list.setItemFontBold(row, taskColumn, true);
    case 2:
        return list.setItemFontItalic(row, taskColumn, true);
    case 3:
        list.setItemFontUnderline(row, taskColumn, true);
        return list.setItemForeColor(row, taskColumn, QColor(0x1A5FB4));
    case 4:
        list.setItemFontStrikethrough(row, taskColumn, true);
        return list.setItemChecked(row, checkColumn, true);
    case 5:
        return list.setItemFontSize(row, taskColumn, 11);
    case 6:
        return list.setItemForeColor(row, taskColumn, QColor(0xA51D2D));
    case 7:
        for (int column = taskColumn; column <= amountColumn; ++column)
            list.setItemBackColor(row, column, QColor(0xFFF3B0));
        return;
    case 8:
        return list.setRowEnabled(row, false);
    case 9:
        return list.setItemAllowEdit(row, taskColumn, true);
    case 10:
        return list.setItemIcon(row, taskColumn, documentPixmap());
    default:
        return list.setItemToolTip(row, taskColumn, u"A tip belongs to a cell."_s);
    }
}

} // namespace

CellsPage::CellsPage()
    : Page(u"Cells"_s,
           u"Each cell has its own font, colours, icon, tip and check box, and may hold a widget. The "
           u"buttons start "
           "their rows anew."_s) {
    rows().addWidget(addList(), 1);
    clock_.setInterval(120);
    connect(&clock_, &QTimer::timeout, this, &CellsPage::tick);
}

void CellsPage::fill() {
    {
        const PaintOnce once(list());
        list().setStyle(LumtexListView::cCheckBoxes);
        list().setAllowEdit(true);
        list().setGridLines(true);
        list().setGridLineColor(QColor(0xE0E0E0));
        list().setRowHeight(24 * 15);
        list().setTextPositionDefault(LumtexListView::cTextPosCenter);
        addColumn(list(), {}, 26);
        list().setColumnCheckBoxes(checkColumn, true);
        addColumn(list(), u"Task"_s, 200);
        addColumn(list(), u"Hours"_s, 70, LumtexListView::cColumnRight);
        addColumn(list(), u"Progress"_s, 160);
        addColumn(list(), u"Action"_s, 90);
        for (std::size_t i = 0; i < tasks.size(); ++i)
            addTask(static_cast<int>(i) + 1);
    }
    clock_.start();
}

void CellsPage::addTask(int number) {
    addRow(list(),
           {{},
            QString::fromUtf16(tasks.at(static_cast<std::size_t>(number) - 1)),
            QString::number(number * 1.5)});
    dress(list(), number);
    auto* bar = new QProgressBar(this);
    bar->setValue(number * 37 % 100);
    bars_.push_back(bar);
    list().setItemObject(number, progressColumn, bar);
    auto* button = new QPushButton(u"Restart"_s, this);
    connect(button, &QPushButton::clicked, bar, [bar] { bar->setValue(0); });
    list().setItemObject(number, buttonColumn, button);
}

void CellsPage::tick() {
    if (!isVisible())
        return;
    for (std::size_t i = 0; i < bars_.size(); ++i) {
        const int step = static_cast<int>(i % 3) + 1;
        bars_[i]->setValue(std::min(bars_[i]->value() + step, bars_[i]->maximum()));
    }
}

} // namespace lumtex::gallery
