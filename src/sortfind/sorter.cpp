#include "sortfind/sorter.h"

#include "guards/error.h"
#include "guards/failure_of.h"
#include "model/list_view.h"
#include "ordering/quick_sort.h"
#include "ordering/sort_at_once.h"
#include "sortfind/sort_stepwise.h"

#include <algorithm>

namespace lumtex {

void Sorter::Sort(Long Column, cSortMode SortMode, cSortType SortType) {
    if (records_.ColumnsCount() == 0 || records_.RowsCount() == 0 || Column > records_.ColumnsCount())
        return;
    Procedure p = procedure(u"Sort");
    // Wanted: dropping the mark repaints and raises no SortDone.
    if (Column == -1) {
        state_.sortAscending = 0;
        state_.sortColumn = -1;
        core_.CheckForRedraw();
        return;
    }
    const bool inOrder = SortMode == cAscending || SortMode == cDescending;
    // At once, the rows are looked at one time, else twice: so each cell that cannot be read is reported.
    if (!inOrder || !sortAtOnce(Column, SortType, SortMode)) {
        state_.hasSortableText = anyTextInColumn(Column);
        if (state_.hasSortableText && inOrder)
            quickSort(Column, SortType, SortMode);
    }
    if (state_.hasSortableText && inOrder) {
        state_.sortAscending = SortMode == cAscending ? 1 : 0;
        state_.sortColumn = Column - 1;
    }
    // Wanted: SortDone comes also where nothing was sorted, and the sort itself does not repaint.
    p.raise([&] { core_.events().SortDone(); });
}

void Sorter::sortByClick(Long column) {
    state_.sortColumn = column;
    // Wanted: each click turns the direction, whichever column it falls on.
    state_.sortAscending = state_.sortAscending == 0 ? 1 : 0;
    // Wanted: a click on a header sorts as text, whatever the column holds.
    Sort(state_.sortColumn + 1, state_.sortAscending == 0 ? cDescending : cAscending, cSortText);
}

void Sorter::forgetSort() {
    state_.sortColumn = -1;
    state_.sortAscending = 1;
}

/// Looks at every row, so that each cell that cannot be read is reported.
bool Sorter::anyTextInColumn(Long Column) {
    bool any = false;
    constexpr std::size_t ahead = 16;
    const Long count = records_.RowsCount();
    for (Long row = 1; row <= count; ++row) {
        if (Column > 0)
            records_.rows().prefetch(static_cast<std::size_t>(row) + ahead,
                                     static_cast<std::size_t>(Column) - 1);
        Items* const cells = row <= records_.RowsCount() ? records_.cellsOf(row, Column) : nullptr;
        if (cells != nullptr)
            any = ordering::holdsMoreThanBlanks((*cells)[static_cast<std::size_t>(Column) - 1].text()) || any;
        else
            list_.ItemText(row, Column);
    }
    return any;
}

void Sorter::quickSort(Long Column, cSortType SortType, cSortMode order) {
    // A report may have let the host mend what was reported.
    if (sortAtOnce(Column, SortType, order))
        return;
    Procedure p = procedure(order == cDescending ? u"QuickSortDesc" : u"QuickSortAsc");
    p.step([&] {
        SortStepwise rows(list_, records_, p, Column, SortType, order);
        ordering::quickSort(rows, 0, records_.upperBoundOfRows());
    });
}

/// False, with nothing done, where the statements must run one by one: they report something, or there is no
/// memory for the keys.
bool Sorter::sortAtOnce(Long Column, cSortType SortType, cSortMode order) {
    if (Column < 1 || (SortType != cSortText && SortType != cSortNumeric && SortType != cSortDate))
        return false;
    bool sorted = false;
    ignoringErrors([&] {
        const auto cell = static_cast<std::size_t>(Column) - 1;
        const RowArray& rows = records_.rows();
        const auto sources =
            ordering::orderAtOnce(rows, cell, SortType, order, silentError(), handsFor(rows.size()));
        if (!sources)
            return;
        // Wanted: ListIndex, NewIndex, the top row and the anchors of the selection keep their numbers.
        if (!sources->empty())
            records_.rows().reorder(*sources);
        state_.hasSortableText = !sources->empty();
        sorted = true;
    });
    return sorted;
}

} // namespace lumtex
