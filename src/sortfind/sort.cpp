/// Ordering the rows by the texts of one column.
#include "guards/error.h"
#include "model/list_view.h"
#include "ordering/quick_sort.h"
#include "ordering/sort_by_keys.h"
#include "sortfind/sort_by_statements.h"

#include <algorithm>

namespace lumtex {

namespace {

/// Whether anything is left of a text whose outer blanks are cut.
bool holdsMoreThanBlanks(const CompactText& text) {
    return text.visit([](auto units) {
        return std::any_of(units.begin(), units.end(), [](char16_t unit) { return unit != u' '; });
    });
}

} // namespace

void lmListView::Sort(Long Column, cSortMode SortMode, cSortType SortType) {
    if (ColumnsCount() == 0 || RowsCount() == 0 || Column > ColumnsCount())
        return;
    Procedure p = procedure(u"Sort");
    // Wanted: dropping the mark repaints and raises no SortDone.
    if (Column == -1) {
        sort_.sortAscending = 0;
        sort_.sortColumn = -1;
        CheckForRedraw();
        return;
    }
    sort_.hasSortableText = anyTextInColumn(Column);
    if (sort_.hasSortableText && (SortMode == cAscending || SortMode == cDescending)) {
        quickSort(Column, SortType, SortMode);
        sort_.sortAscending = SortMode == cAscending ? 1 : 0;
        sort_.sortColumn = Column - 1;
    }
    // Wanted: SortDone comes also where nothing was sorted, and the sort itself does not repaint.
    p.raise([&] { events_->SortDone(); });
}

/// Looks at every row, so that each cell that cannot be read is reported.
bool lmListView::anyTextInColumn(Long Column) {
    bool any = false;
    const Long count = RowsCount();
    for (Long row = 1; row <= count; ++row) {
        const bool there = row <= RowsCount() && Column >= 1 &&
                           static_cast<std::size_t>(Column) <= recordAt(row - 1).items.count();
        if (there)
            any = holdsMoreThanBlanks(cellAt(row, Column).item().text()) || any;
        else
            ItemText(row, Column);
    }
    return any;
}

void lmListView::quickSort(Long Column, cSortType SortType, cSortMode order) {
    // Wanted: ListIndex, NewIndex, the top row and the anchors of the selection keep their numbers.
    if (sortByKeys(Column, SortType, order))
        return;
    Procedure p = procedure(order == cDescending ? u"QuickSortDesc" : u"QuickSortAsc");
    p.step([&] {
        SortByStatements rows(*this, p, Column, SortType, order);
        lumtex::quickSort(rows, 0, upperBoundOfRows());
    });
}

/// False, with nothing done, where the statements must run one by one: they report something, or there is no
/// memory for the keys.
bool lmListView::sortByKeys(Long Column, cSortType SortType, cSortMode order) {
    if (Column < 1 || (SortType != cSortText && SortType != cSortNumeric && SortType != cSortDate))
        return false;
    bool sorted = false;
    ignoringErrors([&] {
        const auto cell = static_cast<std::size_t>(Column) - 1;
        const auto sources = orderByKeys(rows_, cell, SortType, order, silentError());
        if (!sources)
            return;
        std::vector<RowRecord> moved;
        moved.reserve(rows_.size());
        for (const std::uint32_t source : *sources)
            moved.push_back(std::move(rows_[source]));
        rows_ = std::move(moved);
        sorted = true;
    });
    return sorted;
}

} // namespace lumtex
