/// Which column and which row lie at a place, by what the last paint left behind.
#include "interaction/mouse.h"
#include "interaction/shared_count.h"
#include "model/list_view.h"
#include "render/painting.h"
#include "scroll/scroller.h"

namespace lumtex {

/// None while the pointer is not known to be inside the control.
std::optional<ColumnSpan> Mouse::columnUnder(Single X) {
    std::optional<ColumnSpan> hit;
    Single left = core_.painting->firstColumnX();
    countShared(core_.counters.scanIndex, core_.painting->firstColumn(), records_.ColumnsCount() - 1, [&] {
        const Single width = core_.painting->columnWidthInPixels(core_.counters.scanIndex);
        if (state_.mouseInside && X >= left && X < left + width) {
            hit = ColumnSpan{core_.counters.scanIndex, left, width};
            return false;
        }
        left += width;
        return true;
    });
    return hit;
}

/// With dynamic rows that is the end of the bar, which may lie past the last row.
Long Mouse::lastRowToScan() const {
    return properties_.RowsDynamic ? core_.scroller->vertical().Max() : records_.RowsCount() - 1;
}

/// The row of a move or a release; a row that cannot be read is reported and passed over.
std::optional<Long> Mouse::rowUnder(Single Y, RowEdge topEdge, Procedure& p) {
    std::optional<Long> hit;
    auto top = static_cast<Single>(core_.painting->ColumnHeight());
    Long& row = core_.counters.scanIndex;
    countShared(row, core_.scroller->vertical().Value(), lastRowToScan(), [&] {
        const bool over = p.condition(
            [&] {
                const Single bottom = top + records_.recordAt(row).Height;
                return (topEdge == RowEdge::included ? Y >= top : Y > top) && Y < bottom;
            },
            false);
        if (over) {
            hit = row;
            return false;
        }
        if (top > static_cast<Single>(window_.surface().scaleHeight()))
            return false;
        if (row >= 0 && row <= records_.upperBoundOfRows())
            top += records_.recordAt(row).Height;
        return true;
    });
    return hit;
}

/// The row of a press. A disabled cell lets the press fall through.
std::optional<Long> Mouse::rowPressed(Single Y, Procedure& p) {
    std::optional<Long> hit;
    state_.rowScanTop = static_cast<Single>(core_.painting->ColumnHeight());
    Long& row = core_.counters.scanIndex;
    countShared(row, core_.scroller->vertical().Value(), lastRowToScan(), [&] {
        // Wanted: a press on a row's top edge hits nothing, a move there hits the row.
        const bool over = p.condition(
            [&] {
                const Single bottom = state_.rowScanTop + records_.recordAt(row).Height;
                return Y > state_.rowScanTop && Y < bottom;
            },
            false);
        if (over) {
            if (list_.ItemEnabled(row + 1, core_.headerGesture->currentColumn() + 1)) {
                hit = row;
                return false;
            }
            list_.StopEdit();
        }
        if (state_.rowScanTop > static_cast<Single>(window_.surface().scaleHeight()))
            return false;
        p.step([&] { state_.rowScanTop += records_.recordAt(row).Height; });
        return true;
    });
    return hit;
}

} // namespace lumtex
