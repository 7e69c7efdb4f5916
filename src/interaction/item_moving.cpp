/// Dragging the current row to another place.
#include "model/list_view.h"

#include <utility>

namespace lumtex {

/// `row` counts from 0.
void lmListView::dragRow(Long row) {
    // Wanted: the current row counted from 1 against the row under the mouse counted from 0, so the row
    // behind the current one is no target.
    if (RowIndex() == row || move_.moveTargetRow == row)
        return;
    // Wanted: the first row is no target, and a drag that finds no row leaves the target as it is.
    if (row != 0)
        move_.moveTargetRow = row;
    Redraw();
}

// Wanted: nothing asks whether a drag took place, and the row behind the current one is meant: each click
// moves cells.
void lmListView::dropRow() {
    const Long row = RowIndex();
    if (move_.moveTargetRow <= row)
        MoveItemUp(row, row - move_.moveTargetRow);
    else
        MoveItemDown(row, move_.moveTargetRow - row - 1);
    move_.moveTargetRow = -1;
    if (ColumnsCount() == 0)
        Redraw();
}

// Wanted: the two rows swap their cells and nothing else; the rows between stay.

/// `Row` counts from 0.
void lmListView::MoveItemUp(Long Row, Long Count) {
    if (RowsCount() == 0 || ColumnsCount() == 0)
        return;
    Procedure p = procedure(u"MoveItemUp");
    if (Row - Count < 0)
        Count = Row;
    if (Count == 0)
        return;
    p.step([&] { std::swap(recordAt(Row).items, recordAt(Row - Count).items); });
    // Wanted: stored without a check, and whether or not anything moved.
    properties_.ListIndex -= Count;
    if (properties_.AutoRedraw)
        Redraw();
}

/// `Row` counts from 0. The cells change places one by one, the two collections stay with their rows.
void lmListView::MoveItemDown(Long Row, Long Count) {
    if (RowsCount() == 0 || ColumnsCount() == 0)
        return;
    Procedure p = procedure(u"MoveItemDown");
    const Long last = upperBoundOfRows();
    if (Row + Count > last)
        Count = last - Row;
    if (Count == 0)
        return;
    for (Long column = 1; column <= ColumnsCount(); ++column) {
        p.step([&] {
            const Cell upper = cellAt(Row + 1, column);
            const Cell lower = cellAt(Row + Count + 1, column);
            upper.items.exchangeCell(upper.index, lower.items);
        });
    }
    properties_.ListIndex += Count;
    if (properties_.AutoRedraw)
        Redraw();
}

} // namespace lumtex
