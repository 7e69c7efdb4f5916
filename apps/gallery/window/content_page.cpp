#include "content_page.h"

#include "list_texts.h"
#include "sample_rows.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <algorithm>

namespace lumtex::gallery {

using namespace Qt::StringLiterals;

namespace {

enum Columns { nameColumn = 1, cityColumn, amountColumn };

QColor markColor() {
    return {0xFF, 0xD9, 0xA8};
}

void addColumns(LumtexListView& list) {
    addColumn(list, u"Name"_s, 140);
    addColumn(list, u"City"_s, 90);
    addColumn(list, u"Amount"_s, 80, LumtexListView::cColumnRight);
}

bool differ(const LumtexListView& left, const LumtexListView& right, int row, int column) {
    return left.ItemText(row, column) != right.ItemText(row, column) ||
           left.ItemFontBold(row, column) != right.ItemFontBold(row, column) ||
           left.ItemForeColor(row, column) != right.ItemForeColor(row, column);
}

} // namespace

ContentPage::ContentPage()
    : Page(u"Content files"_s,
           u"Save the left list with its fonts and colours, edit a cell (press it twice), load the file into "
           u"the right "
           "list, and compare: cells that differ are marked."_s),
      saved_(addList()), loaded_(addList()) {
    path_->setText(folder_.filePath(u"cells.content"_s));
    path_->setAccessibleName(u"File"_s);
    auto* line = new QHBoxLayout;
    line->addWidget(path_, 1);
    const auto addButton = [&](const QString& text, auto act) {
        auto* button = new QPushButton(text);
        connect(button, &QPushButton::clicked, this, act);
        line->addWidget(button);
    };
    addButton(u"Sa&ve"_s, &ContentPage::save);
    addButton(u"&Load"_s, &ContentPage::load);
    addButton(u"C&ompare"_s, &ContentPage::compare);
    rows().addLayout(line);
    auto* lists = new QHBoxLayout;
    lists->addWidget(saved_);
    lists->addWidget(loaded_);
    rows().addLayout(lists, 1);
    rows().addWidget(status_);
    saved_->setAllowEdit(true);
    loaded_->setAllowEdit(true);
}

void ContentPage::fill() {
    constexpr int count = 40;
    addColumns(*saved_);
    addColumns(*loaded_);
    const PaintOnce once(*saved_);
    for (int i = 1; i <= count; ++i) {
        const SampleRow sample = sampleRow(i);
        addRow(*saved_, {sample.name, sample.city, QString::number(sample.amount, 'f', 2)});
        for (int column = nameColumn; column <= amountColumn; ++column)
            saved_->setItemAllowEdit(i, column, true);
        saved_->setItemFontBold(i, nameColumn, i % 4 == 1);
        if (i % 5 == 0)
            saved_->setItemForeColor(i, cityColumn, QColor(0x1A5FB4));
    }
}

void ContentPage::save() {
    const bool saved = saved_->ContentSave(path_->text(), true);
    status_->setText(saved ? u"Saved: %1 bytes"_s.arg(QFileInfo(path_->text()).size())
                           : u"%1 cannot be written."_s.arg(path_->text()));
}

void ContentPage::load() {
    const bool loaded = loaded_->ContentInput(path_->text(), true);
    status_->setText(loaded ? u"Loaded: %1 rows"_s.arg(loaded_->RowsCount())
                            : u"There is no file %1."_s.arg(path_->text()));
}

int ContentPage::compare() {
    int different = 0;
    const PaintOnce once(*loaded_);
    const int common = std::min(saved_->RowsCount(), loaded_->RowsCount());
    for (int row = 1; row <= loaded_->RowsCount(); ++row) {
        for (int column = nameColumn; column <= amountColumn; ++column) {
            const bool marked = row > common || differ(*saved_, *loaded_, row, column);
            loaded_->setItemBackColor(row, column, marked ? QVariant(markColor()) : QVariant(u"def"_s));
            different += marked ? 1 : 0;
        }
    }
    different += std::max(0, saved_->RowsCount() - common) * amountColumn;
    status_->setText(u"%1 cells differ"_s.arg(different));
    return different;
}

} // namespace lumtex::gallery
