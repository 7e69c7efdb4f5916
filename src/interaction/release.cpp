/// A release: the end of a resize, the click on a header, the click on a cell.
#include "model/list_view.h"

#include <algorithm>

namespace lumtex {

void lmListView::UserControl_MouseUp(Integer Button, Integer Shift, Single X, Single Y) {
    Procedure p = procedure(u"UserControl_MouseUp");
    p.step([&] { tmrMouseAction->letEnabled(false); });
    if (properties_.AllowItemMoving)
        dropRow();
    if (ColumnsCount() != 0) {
        mouse_.lastMouseX = X;
        mouse_.lastMouseY = Y;
        mouse_.lastMouseButton = Button;
        const std::optional<ColumnHit> hit = columnUnder(X);
        headerPress_.currentColumn = hit ? hit->index : -1;
        if (!properties_.FixColumns && headerPress_.resizeColumn != -1 && headerPress_.resizing)
            endResize(X, p);
        if (headerPress_.hoverColumn == headerPress_.pressedColumn && headerPress_.hoverColumn != -1)
            clickColumn(p);
        endHeaderPress(p);
    }
    p.raise([&] { events_->MouseUp(Button, Shift, X, Y); });
    if (RowsCount() < 1 || ColumnsCount() < 1 || edit_.lastClickRow < 0 || edit_.lastClickColumn < 0)
        return;
    if (const std::optional<Long> row = rowUnder(Y, RowEdge::excluded, p))
        releaseOnRow(*row, p);
}

void lmListView::endResize(Single X, Procedure& p) {
    const Surface& surface = window_->surface();
    const Long resized = headerPress_.resizeColumn;
    const auto oldWidth = p.value<Single>([&] { return columnAt(resized).Width; });
    const auto newWidth = p.value<Single>([&] {
        return scaleX(surface, static_cast<Double>(X) + HS->Value(), pixels, twips) - columnAt(resized).Left;
    });
    const Single minWidth = scaleX(surface, properties_.IconW / 2 + properties_.IconW, pixels, twips);
    p.step([&] { columnAt(resized).Width = std::max(newWidth, minWidth); });
    for (Long i = std::max<Long>(resized, 0); i < ColumnsCount() - 1; ++i) {
        // Wanted: what is taken off is always the old width of the resized column, so only its first
        // neighbour moves by the true amount.
        p.step([&] { columnAt(i + 1).Left = columnAt(i + 1).Left + columnAt(i).Width - oldWidth; });
    }
    CheckScroll();
}

void lmListView::clickColumn(Procedure& p) {
    Long column = headerPress_.hoverColumn + 1;
    p.raise([&] { events_->ColumnClick(column); });
    if (!p.condition([&] { return columnAt(headerPress_.hoverColumn).AllowSorting; }, false))
        return;
    sort_.sortColumn = headerPress_.hoverColumn;
    // Wanted: each click turns the direction, whichever column it falls on.
    sort_.sortAscending = sort_.sortAscending == 0 ? 1 : 0;
    // Wanted: a click on a header sorts as text, whatever the column holds.
    Sort(sort_.sortColumn + 1, sort_.sortAscending == 0 ? cDescending : cAscending, cSortText);
}

void lmListView::endHeaderPress(Procedure& p) {
    headerPress_.pressedColumn = -1;
    headerPress_.resizing = false;
    p.step([&] { Line1->letVisible(false); });
    headerPress_.resizeColumn = -1;
    headerPress_.pressPending = false;
    yield(p);
    Redraw();
}

/// `row` counts from 0. The cell of a release is remembered as that of a press is, so a press on it counts as
/// the second one.
void lmListView::releaseOnRow(Long row, Procedure& p) {
    const Long& column = headerPress_.currentColumn;
    p.raise([&] { events_->ItemUp(row + 1, column + 1); });
    if (edit_.lastClickColumn == column && edit_.lastClickRow == row)
        p.raise([&] { events_->ItemClick(row + 1, column + 1); });
    edit_.lastClickRow = row;
    edit_.lastClickColumn = column;
}

} // namespace lumtex
