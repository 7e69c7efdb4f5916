#include "schemes_page.h"

#include "list_texts.h"
#include "sample_rows.h"

#include <QGridLayout>
#include <QLabel>
#include <array>

namespace lumtex::gallery {

using namespace Qt::StringLiterals;

namespace {

struct Scheme {
    const char16_t* title;
    LumtexListView::cColorStyle style;
};

constexpr std::array schemes{Scheme{u"Blue", LumtexListView::cXPBlue},
                             Scheme{u"Silver", LumtexListView::cXPSilver},
                             Scheme{u"Olive", LumtexListView::cXPOlive},
                             Scheme{u"Custom", LumtexListView::cCustom}};

void makeCustom(LumtexListView& list) {
    list.setScrollColorStyle(LumtexListView::cScrollCustom);
    list.setColumnBackColor(QColor(0xE4EDE6));
    list.setColumnHoverColor(QColor(0xF2F7F3));
    list.setColumnDownColor(QColor(0xC9DCCF));
    list.setEmptyColumnFieldColor(QColor(0xE4EDE6));
    list.setDefaultColumnForeColor(QColor(0x1F4D36));
    list.setValueColor(QColor(0x2F7D57));
    list.setBorderColor(QColor(0x8FB5A0));
    list.setScrollBackColor(QColor(0xF3F7F4));
    list.setScrollBar(QColor(0xB9D3C3));
    list.setScrollBarHover(QColor(0xA5C6B2));
    list.setScrollBarDown(QColor(0x8FB5A0));
    list.setScrollButtons(QColor(0xE4EDE6));
    list.setScrollButtonsHover(QColor(0xD3E3D9));
    list.setScrollButtonsDown(QColor(0xB9D3C3));
    list.setScrollArrows(QColor(0x2F7D57));
    list.setScrollArrowsHover(QColor(0x2F7D57));
    list.setScrollArrowsDown(QColor(0x1F4D36));
    list.setAutoRowColor(true);
    list.setRowColorFirst(QColor(0xFFFFFF));
    list.setRowColorSecond(QColor(0xF3F7F4));
}

} // namespace

SchemesPage::SchemesPage()
    : Page(u"Colour schemes"_s,
           u"Move over the headers and the bars, press them, and select rows. The settings at the side "
           u"belong to the "
           "list that has the focus."_s) {
    auto* grid = new QGridLayout;
    for (std::size_t i = 0; i < schemes.size(); ++i) {
        LumtexListView* list = addList();
        auto* label = new QLabel(QString::fromUtf16(schemes.at(i).title));
        const int row = static_cast<int>(i / 2) * 2;
        const int column = static_cast<int>(i % 2);
        grid->addWidget(label, row, column);
        grid->addWidget(list, row + 1, column);
        grid->setRowStretch(row + 1, 1);
        list->setAccessibleName(label->text());
        list->setColorStyle(schemes.at(i).style);
        lists_.push_back(list);
    }
    makeCustom(*lists_.back());
    rows().addLayout(grid, 1);
}

void SchemesPage::fill() {
    constexpr int count = 60;
    for (LumtexListView* list : lists_) {
        const PaintOnce once(*list);
        list->setMultiSelect(true);
        addColumn(*list, u"Name"_s, 118);
        addColumn(*list, u"City"_s, 65);
        addColumn(*list, u"Amount"_s, 75, LumtexListView::cColumnRight);
        addColumn(*list, u"Date"_s, 98);
        for (int column = 1; column <= 4; ++column)
            list->setColumnAllowSorting(column, true);
        for (int i = 1; i <= count; ++i) {
            const SampleRow row = sampleRow(i);
            addRow(*list,
                   {row.name, row.city, QString::number(row.amount, 'f', 2), row.date.toString(Qt::ISODate)});
        }
        list->setRowEnabled(6, false);
        list->setListIndex(2);
    }
}

} // namespace lumtex::gallery
