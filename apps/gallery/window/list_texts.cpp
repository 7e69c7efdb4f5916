#include "list_texts.h"

#include <algorithm>

namespace lumtex::gallery {

namespace {

using namespace Qt::StringLiterals;

constexpr int twipsPerPixel = 15;
constexpr QChar unitSeparator(0x1F); // stands in no text
constexpr auto lastDirection = "lastSortMode";

} // namespace

void addColumn(LumtexListView& list,
               const QString& title,
               int pixels,
               LumtexListView::cColumnHeaderAlign alignment) {
    list.ColumnsAdd(escaped(title), {}, {}, {}, alignment, static_cast<float>(pixels * twipsPerPixel));
}

void addRow(LumtexListView& list, const QStringList& texts, int before) {
    list.RowsAdd(before, unitSeparator, escaped(texts.join(unitSeparator)));
    for (int column = 1; column <= list.ColumnsCount(); ++column) {
        if (list.ColumnAlignment(column) == LumtexListView::cColumnRight)
            list.setItemAlignment(list.NewIndex() + 1, column, LumtexListView::cItemRight);
    }
}

QString escaped(QString text) {
    return text.replace(u'&', "&&"_L1);
}

QString unescaped(QString text) {
    return text.replace("&&"_L1, "&"_L1);
}

PaintOnce::PaintOnce(LumtexListView& list) : list_(list) {
    list_.setAutoRedraw(false);
    list_.setAutoCheckScroll(false);
}

PaintOnce::~PaintOnce() {
    list_.setAutoCheckScroll(true);
    list_.setAutoRedraw(true);
    list_.CheckScroll();
}

void goToRow(LumtexListView& list, int row) {
    constexpr int rowsAbove = 3; // which tell where in the list it is
    list.setListIndex(row - 1);
    const int inView = static_cast<int>(list.height() / (list.RowHeight() / twipsPerPixel)) - rowsAbove;
    if (row - 1 < list.TopIndex() || row - 1 >= list.TopIndex() + inView)
        list.setTopIndex(std::max(0, row - 1 - rowsAbove));
}

void sortByHeader(LumtexListView& list, int column, LumtexListView::cSortType type) {
    const bool wasAscending = list.SortColumnIndex() == column &&
                              list.property(lastDirection).toInt() == LumtexListView::cAscending;
    const auto mode = wasAscending ? LumtexListView::cDescending : LumtexListView::cAscending;
    list.setProperty(lastDirection, int{mode});
    list.Sort(column, mode, type);
}

} // namespace lumtex::gallery
