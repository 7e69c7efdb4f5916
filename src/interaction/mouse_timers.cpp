/// The two timers of the mouse: one notices that it has left, one scrolls while a drag is held outside.
#include "model/list_view.h"
#include "values/rounding.h"

namespace lumtex {

void lmListView::tmrMouseIn_Timer() {
    Procedure p = procedure(u"tmrMouseIn_Timer");
    if (designMode()) {
        p.step([&] { tmrMouseIn->letEnabled(false); });
        return;
    }
    // A child over the surface, a bar for one, counts as outside.
    if (p.condition([&] { return window_->pointerStrictlyInside(); }, true)) {
        mouse_.mouseInside = true;
        return;
    }
    mouse_.mouseInside = false;
    p.step([&] { window_->letMousePointer(pointerDefault); });
    Redraw();
    p.step([&] { tmrMouseIn->letEnabled(false); });
}

void lmListView::tmrMouseAction_Timer() {
    Procedure p = procedure(u"tmrMouseAction_Timer");
    if (designMode() || mouse_.lastMouseButton == noButton) {
        p.step([&] { tmrMouseAction->letEnabled(false); });
        move_.moveTargetRow = -1;
        tmrMouseAction->Tag.clear();
        return;
    }
    if (tmrMouseAction->Tag == u"up" && TopIndex() >= 1) {
        if (properties_.AllowItemMoving)
            move_.moveTargetRow = TopIndex() - 1;
        letTopIndex(TopIndex() - 1);
    } else if (tmrMouseAction->Tag == u"down") {
        if (properties_.AllowItemMoving)
            p.step([&] { move_.moveTargetRow = sumOf(TopIndex(), VisibleItems()); });
        // Wanted: at the last row it keeps ticking.
        p.step([&] { letTopIndex(sumOf(TopIndex(), 1)); });
    } else {
        p.step([&] { tmrMouseAction->letEnabled(false); });
    }
}

} // namespace lumtex
