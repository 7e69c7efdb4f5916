/// Which column and which row lie at a place, by what the last paint left behind.
#include "interaction/shared_count.h"
#include "model/list_view.h"

namespace lumtex {

/// None while the pointer is not known to be inside the control.
std::optional<lmListView::ColumnHit> lmListView::columnUnder(Single X) {
    std::optional<ColumnHit> hit;
    Single left = paint_.firstColumnX;
    countShared(paint_.scanIndex, paint_.firstColumn, ColumnsCount() - 1, [&] {
        const Single width = columnWidthInPixels(paint_.scanIndex);
        if (mouse_.mouseInside && X >= left && X < left + width) {
            hit = ColumnHit{paint_.scanIndex, left, width};
            return false;
        }
        left += width;
        return true;
    });
    return hit;
}

/// With dynamic rows that is the end of the bar, which may lie past the last row.
Long lmListView::lastRowToScan() const {
    return properties_.RowsDynamic ? VS->Max() : RowsCount() - 1;
}

/// The row of a move or a release; a row that cannot be read is reported and passed over.
std::optional<Long> lmListView::rowUnder(Single Y, RowEdge topEdge, Procedure& p) {
    std::optional<Long> hit;
    auto top = static_cast<Single>(ColumnHeight());
    Long& row = paint_.scanIndex;
    countShared(row, VS->Value(), lastRowToScan(), [&] {
        const bool over = p.condition(
            [&] {
                const Single bottom = top + recordAt(row).Height;
                return (topEdge == RowEdge::included ? Y >= top : Y > top) && Y < bottom;
            },
            false);
        if (over) {
            hit = row;
            return false;
        }
        if (top > static_cast<Single>(window_->surface().scaleHeight()))
            return false;
        if (row >= 0 && row <= upperBoundOfRows())
            top += recordAt(row).Height;
        return true;
    });
    return hit;
}

/// The row of a press. A disabled cell lets the press fall through.
std::optional<Long> lmListView::rowPressed(Single Y, Procedure& p) {
    std::optional<Long> hit;
    mouse_.rowScanTop = static_cast<Single>(ColumnHeight());
    Long& row = paint_.scanIndex;
    countShared(row, VS->Value(), lastRowToScan(), [&] {
        // Wanted: a press on a row's top edge hits nothing, a move there hits the row.
        const bool over = p.condition(
            [&] {
                const Single bottom = mouse_.rowScanTop + recordAt(row).Height;
                return Y > mouse_.rowScanTop && Y < bottom;
            },
            false);
        if (over) {
            if (ItemEnabled(row + 1, headerPress_.currentColumn + 1)) {
                hit = row;
                return false;
            }
            StopEdit();
        }
        if (mouse_.rowScanTop > static_cast<Single>(window_->surface().scaleHeight()))
            return false;
        p.step([&] { mouse_.rowScanTop += recordAt(row).Height; });
        return true;
    });
    return hit;
}

} // namespace lumtex
