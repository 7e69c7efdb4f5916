/// The two timers of the mouse: one notices that it has left, one scrolls while a drag is held outside.
#include "interaction/mouse.h"
#include "interaction/row_drag.h"
#include "model/list_view.h"
#include "scroll/scroller.h"
#include "values/rounding.h"

namespace lumtex {

void Mouse::tmrMouseIn_Timer() {
    Procedure p = procedure(u"tmrMouseIn_Timer");
    if (core_.designMode()) {
        p.step([&] { tmrMouseIn_->letEnabled(false); });
        return;
    }
    // A child over the surface, a bar for one, counts as outside.
    if (p.condition([&] { return window_.pointerStrictlyInside(); }, true)) {
        state_.mouseInside = true;
        return;
    }
    state_.mouseInside = false;
    p.step([&] { window_.letMousePointer(CursorShape::standard); });
    list_.Redraw();
    p.step([&] { tmrMouseIn_->letEnabled(false); });
}

void Mouse::tmrMouseAction_Timer() {
    Procedure p = procedure(u"tmrMouseAction_Timer");
    if (core_.designMode() || state_.lastMouseButton == noButton) {
        p.step([&] { tmrMouseAction_->letEnabled(false); });
        core_.rowDrag->forgetTarget();
        tmrMouseAction_->Tag.clear();
        return;
    }
    if (tmrMouseAction_->Tag == u"up" && list_.TopIndex() >= 1) {
        if (properties_.AllowItemMoving)
            core_.rowDrag->letTarget(list_.TopIndex() - 1);
        list_.letTopIndex(list_.TopIndex() - 1);
    } else if (tmrMouseAction_->Tag == u"down") {
        if (properties_.AllowItemMoving)
            p.step(
                [&] { core_.rowDrag->letTarget(sumOf(list_.TopIndex(), core_.scroller->VisibleItems())); });
        // Wanted: at the last row it keeps ticking.
        p.step([&] { list_.letTopIndex(sumOf(list_.TopIndex(), 1)); });
    } else {
        p.step([&] { tmrMouseAction_->letEnabled(false); });
    }
}

} // namespace lumtex
