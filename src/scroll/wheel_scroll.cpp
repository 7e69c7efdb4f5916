/// What the mouse wheel does to the list.
#include "model/list_view.h"
#include "platform/queue_watch.h"
#include "values/rounding.h"

namespace lumtex {

bool lmListView::UserControl_Wheel(Long Rotation, Integer Shift, Single X, Single Y) {
    Procedure p = procedure(u"UserControl_Wheel");
    return Wheel1->WndProc(hwnd(), Rotation, Shift, X, Y);
}

void lmListView::Wheel1_WheelScroll(Integer& Rotation, Integer& /*Keys*/, Single& /*X*/, Single& /*Y*/) {
    Procedure p = procedure(u"Wheel1_WheelScroll");
    if (RowsCount() == 0 || ColumnsCount() == 0)
        return;
    const bool down = Rotation < 1;
    switch (properties_.WheelFunction) {
    case cWheelScroll:
        if (down)
            wheelLinesDown(p, Rotation);
        else
            wheelLinesUp(p);
        break;
    case cWheelListIndex:
        if (down)
            wheelIndexDown(p, Rotation);
        else
            wheelIndexUp(p, Rotation);
        break;
    case cWheelOff:
        break;
    }
    Wheel1->lethWndCapture(hwnd());
    Redraw();
    yield(p);
}

// Wanted: the size of a turn does not matter, and a turn by 0 goes to the end of the range, as does a turn
// down with a hidden bar.
void lmListView::wheelLinesDown(Procedure& p, Integer Rotation) {
    const Double next = static_cast<Double>(VS->Value()) + properties_.WheelScrollLines;
    if (Rotation < 0 && VS->Visible() && next < VS->Max())
        p.step([&] { VS->letValue(roundToLong(next)); });
    else
        VS->letValue(VS->Max());
    p.raise([&] { events_->Scroll(); });
}

void lmListView::wheelLinesUp(Procedure& p) {
    const Double next = static_cast<Double>(VS->Value()) - properties_.WheelScrollLines;
    if (VS->Visible() && next >= 1)
        p.step([&] { VS->letValue(roundToLong(next)); });
    else
        VS->letValue(0);
    p.raise([&] { events_->Scroll(); });
}

/// Is the row enabled? A row that went away in a yield is reported and ends the walk, as an enabled one does.
bool lmListView::stopsWheel(Procedure& p, Long index) {
    return p.condition([&] { return rowAt(Variant(index + 1)).Enabled; }, true);
}

void lmListView::wheelIndexDown(Procedure& p, Integer Rotation) {
    const auto last = [&] { return RowsCount() - 1; };
    if (Rotation >= 0 || static_cast<Double>(ListIndex()) - Rotation >= last() || ListIndex() >= last()) {
        letListIndex(last());
        return;
    }
    Long i = ListIndex() + 1;
    QueueWatch watch(runtime().queue());
    for (;; ++i) {
        if (i > last())
            return;
        if (stopsWheel(p, i))
            break;
        yield(p, watch);
        if (i == last())
            return;
    }
    if (ListIndex() < last()) {
        yield(p);
        letListIndex(i);
        yield(p);
    }
}

void lmListView::wheelIndexUp(Procedure& p, Integer Rotation) {
    // Wanted: the turn is added, so that only row 0 or no row at all takes the short way.
    if (static_cast<Double>(ListIndex()) + Rotation <= 0 || ListIndex() <= 0) {
        letListIndex(0);
        return;
    }
    QueueWatch watch(runtime().queue());
    for (Long i = ListIndex() - 1; i >= 0; --i) {
        if (stopsWheel(p, i)) {
            if (ListIndex() > 0) {
                yield(p);
                letListIndex(i);
                yield(p);
            }
            break;
        }
        yield(p, watch);
    }
    if (ListIndex() < VS->Value()) {
        VS->letValue(ListIndex());
        p.raise([&] { events_->Scroll(); });
    }
}

} // namespace lumtex
