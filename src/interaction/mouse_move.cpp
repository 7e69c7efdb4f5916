/// A move of the mouse: hover, the guide of a resize, and what a drag does.
#include "interaction/surface_object.h"
#include "model/list_view.h"

namespace lumtex {

void lmListView::UserControl_MouseMove(Integer Button, Integer Shift, Single X, Single Y) {
    Procedure p = procedure(u"UserControl_MouseMove");
    yield(p);
    mouse_.lastMouseX = X;
    mouse_.lastMouseY = Y;
    mouse_.lastMouseButton = Button;
    p.step([&] {
        if (!tmrMouseIn->Enabled())
            tmrMouseIn->letEnabled(true);
    });
    if (Button == noButton) {
        headerPress_.pressedColumn = -1;
        headerPress_.resizing = false;
        headerPress_.resizeColumn = -1;
        headerPress_.pressPending = false;
    }
    // What the host changes counts from here on.
    p.raise([&] { events_->MouseMove(Button, Shift, X, Y); });
    if (!properties_.HideColumnHeaders)
        moveOverHeaders(X, Y, p);
    if (RowsCount() < 1 || ColumnsCount() < 1)
        return;

    std::optional<Long> row;
    if (columnUnder(X))
        row = rowUnder(Y, RowEdge::included, p);
    if (Button == leftButton)
        drag(Y, row, p);
    if (properties_.CheckMouseOver && !row)
        leaveItem(p);
    yield(p);
}

void lmListView::moveOverHeaders(Single X, Single Y, Procedure& p) {
    if (headerPress_.resizing) {
        p.step([&] { Line1->letY1(0); });
        p.step([&] { Line1->letY2(static_cast<Single>(window_->surface().scaleHeight())); });
        p.step([&] { Line1->letX1(X); });
        p.step([&] { Line1->letX2(X); });
    }
    const auto height = static_cast<Single>(ColumnHeight());
    if (Y <= height)
        Redraw();
    // Wanted: a move on the exact line paints twice.
    if (headerPress_.hoverColumn != -1 && Y >= height)
        Redraw();
    if (!properties_.HideColumnHeaders && Y > static_cast<Single>(ColumnHeight()))
        p.step([&] { window_->letMousePointer(pointerDefault); });
}

/// `row` is the one under the mouse, if any. Out of the rows the drag scrolls, one row a tick.
void lmListView::drag(Single Y, std::optional<Long> row, Procedure& p) {
    const Single barHeight = HS->Visible() ? HS->Height() : 0;
    if (Y < 0) {
        p.step([&] { tmrMouseAction->Tag = u"up"; });
        p.step([&] { tmrMouseAction->letEnabled(true); });
    } else if (Y > static_cast<Single>(window_->surface().scaleHeight()) - barHeight) {
        p.step([&] { tmrMouseAction->Tag = u"down"; });
        p.step([&] { tmrMouseAction->letEnabled(true); });
    } else {
        tmrMouseAction->Tag.clear();
        p.step([&] { tmrMouseAction->letEnabled(false); });
        // Wanted: a drag that finds no row, on the headers or during a resize, goes to the first one.
        const Long rowHit = row.value_or(0);
        if (properties_.AllowItemMoving)
            dragRow(rowHit);
        else
            letRowIndex(rowHit + 1);
    }
}

// Wanted: nothing stores a number in the two fields, so the event is never raised.
void lmListView::leaveItem(Procedure& p) {
    if (mouse_.hoverRow == 0 && mouse_.hoverCellColumn == 0)
        return;
    mouse_.hoverRow = 0;
    mouse_.hoverCellColumn = 0;
    p.raise([&] { events_->ItemOver(0, 0, false); });
    p.step([&] {
        if (!tips_)
            tips_ = std::make_unique<QI>(world_);
        tips_->Remove(std::make_shared<SurfaceObject>(window_->hWnd()));
    });
}

} // namespace lumtex
