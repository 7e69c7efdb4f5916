#include "interaction/row_drag.h"

#include "model/list_view.h"

#include <utility>

namespace lumtex {

/// `row` counts from 0.
void RowDrag::dragRow(Long row) {
    // Wanted: the current row counted from 1 against the row under the mouse counted from 0, so the row
    // behind the current one is no target.
    if (list_.RowIndex() == row || moveTargetRow_ == row)
        return;
    // Wanted: the first row is no target, and a drag that finds no row leaves the target as it is.
    if (row != 0)
        moveTargetRow_ = row;
    list_.Redraw();
}

// Wanted: nothing asks whether a drag took place, and the row behind the current one is meant: each click
// moves cells.
void RowDrag::dropRow() {
    const Long row = list_.RowIndex();
    if (moveTargetRow_ <= row)
        MoveItemUp(row, row - moveTargetRow_);
    else
        MoveItemDown(row, moveTargetRow_ - row - 1);
    moveTargetRow_ = -1;
    if (records_.ColumnsCount() == 0)
        list_.Redraw();
}

// Wanted: the two rows swap their cells and nothing else; the rows between stay.

/// `Row` counts from 0.
void RowDrag::MoveItemUp(Long Row, Long Count) {
    if (records_.RowsCount() == 0 || records_.ColumnsCount() == 0)
        return;
    Procedure p = procedure(u"MoveItemUp");
    if (Row - Count < 0)
        Count = Row;
    if (Count == 0)
        return;
    p.step([&] { std::swap(records_.recordAt(Row).items, records_.recordAt(Row - Count).items); });
    // Wanted: stored without a check, and whether or not anything moved.
    properties_.ListIndex -= Count;
    if (properties_.AutoRedraw)
        list_.Redraw();
}

/// `Row` counts from 0. The cells change places one by one, the two collections stay with their rows.
void RowDrag::MoveItemDown(Long Row, Long Count) {
    if (records_.RowsCount() == 0 || records_.ColumnsCount() == 0)
        return;
    Procedure p = procedure(u"MoveItemDown");
    const Long last = records_.upperBoundOfRows();
    if (Row + Count > last)
        Count = last - Row;
    if (Count == 0)
        return;
    for (Long column = 1; column <= records_.ColumnsCount(); ++column) {
        p.step([&] {
            const ListRecords::Cell upper = records_.cellAt(Row + 1, column);
            const ListRecords::Cell lower = records_.cellAt(Row + Count + 1, column);
            upper.items.exchangeCell(upper.index, lower.items);
        });
    }
    properties_.ListIndex += Count;
    if (properties_.AutoRedraw)
        list_.Redraw();
}

} // namespace lumtex
