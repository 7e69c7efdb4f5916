/// A move of the mouse: what it tells the headers, and what a drag does.
#include "interaction/mouse.h"
#include "interaction/row_drag.h"
#include "interaction/surface_object.h"
#include "model/list_view.h"
#include "scroll/scroller.h"

namespace lumtex {

void Mouse::move(Integer Button, Integer Shift, Single X, Single Y) {
    Procedure p = procedure(u"UserControl_MouseMove");
    core_.yield(p);
    remember(Button, X, Y);
    p.step([&] {
        if (!tmrMouseIn_->Enabled())
            tmrMouseIn_->letEnabled(true);
    });
    if (Button == noButton)
        core_.headerGesture->moveWithoutButton();
    // What the host changes counts from here on.
    p.raise([&] { core_.events().MouseMove(Button, Shift, X, Y); });
    if (!properties_.HideColumnHeaders)
        core_.headerGesture->moveOverHeaders(X, Y, p);
    if (records_.RowsCount() < 1 || records_.ColumnsCount() < 1)
        return;

    std::optional<Long> row;
    if (columnUnder(X))
        row = rowUnder(Y, RowEdge::included, p);
    if (Button == leftButton)
        drag(Y, row, p);
    if (properties_.CheckMouseOver && !row)
        leaveItem(p);
    core_.yield(p);
}

/// `row` is the one under the mouse, if any. Out of the rows the drag scrolls, one row a tick.
void Mouse::drag(Single Y, std::optional<Long> row, Procedure& p) {
    bars::lmHScroll& bar = core_.scroller->horizontal();
    const Single barHeight = bar.Visible() ? bar.Height() : 0;
    if (Y < 0) {
        p.step([&] { tmrMouseAction_->Tag = u"up"; });
        p.step([&] { tmrMouseAction_->letEnabled(true); });
    } else if (Y > static_cast<Single>(window_.surface().scaleHeight()) - barHeight) {
        p.step([&] { tmrMouseAction_->Tag = u"down"; });
        p.step([&] { tmrMouseAction_->letEnabled(true); });
    } else {
        tmrMouseAction_->Tag.clear();
        p.step([&] { tmrMouseAction_->letEnabled(false); });
        // Wanted: a drag that finds no row, on the headers or during a resize, goes to the first one.
        const Long rowHit = row.value_or(0);
        if (properties_.AllowItemMoving)
            core_.rowDrag->dragRow(rowHit);
        else
            list_.letRowIndex(rowHit + 1);
    }
}

// Wanted: nothing stores a number in the two fields, so the event is never raised.
void Mouse::leaveItem(Procedure& p) {
    if (state_.hoverRow == 0 && state_.hoverCellColumn == 0)
        return;
    state_.hoverRow = 0;
    state_.hoverCellColumn = 0;
    p.raise([&] { core_.events().ItemOver(0, 0, false); });
    p.step([&] {
        if (!tips_)
            tips_ = std::make_unique<tips::QI>(core_.world());
        tips_->Remove(std::make_shared<SurfaceObject>(window_.hWnd()));
    });
}

} // namespace lumtex
