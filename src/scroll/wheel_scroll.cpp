/// What the mouse wheel does to the list.
#include "model/list_view.h"
#include "platform/queue_watch.h"
#include "scroll/scroller.h"
#include "values/rounding.h"

namespace lumtex {

void Scroller::listen(Procedure& p) {
    p.step([&] { Wheel1_->EnableWheel(window_.hWnd()); });
}

bool Scroller::wheel(Long Rotation, Integer Shift, Single X, Single Y) {
    Procedure p = procedure(u"UserControl_Wheel");
    return Wheel1_->WndProc(window_.hWnd(), Rotation, Shift, X, Y);
}

void Scroller::Wheel1_WheelScroll(Integer& Rotation, Integer& /*Keys*/, Single& /*X*/, Single& /*Y*/) {
    Procedure p = procedure(u"Wheel1_WheelScroll");
    if (records_.RowsCount() == 0 || records_.ColumnsCount() == 0)
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
    list_.Redraw();
    core_.yield(p);
}

// Wanted: the size of a turn does not matter, and a turn by 0 goes to the end of the range, as does a turn
// down with a hidden bar.
void Scroller::wheelLinesDown(Procedure& p, Integer Rotation) {
    const Double next = static_cast<Double>(VS_->Value()) + properties_.WheelScrollLines;
    if (Rotation < 0 && VS_->Visible() && next < VS_->Max())
        p.step([&] { VS_->letValue(roundToLong(next)); });
    else
        VS_->letValue(VS_->Max());
    p.raise([&] { core_.events().Scroll(); });
}

void Scroller::wheelLinesUp(Procedure& p) {
    const Double next = static_cast<Double>(VS_->Value()) - properties_.WheelScrollLines;
    if (VS_->Visible() && next >= 1)
        p.step([&] { VS_->letValue(roundToLong(next)); });
    else
        VS_->letValue(0);
    p.raise([&] { core_.events().Scroll(); });
}

/// Is the row enabled? A row that went away in a yield is reported and ends the walk, as an enabled one does.
bool Scroller::stopsWheel(Procedure& p, Long index) {
    return p.condition([&] { return records_.rowAt(Variant(index + 1)).Enabled; }, true);
}

void Scroller::wheelIndexDown(Procedure& p, Integer Rotation) {
    const auto last = [&] { return records_.RowsCount() - 1; };
    if (Rotation >= 0 || static_cast<Double>(list_.ListIndex()) - Rotation >= last() ||
        list_.ListIndex() >= last()) {
        list_.letListIndex(last());
        return;
    }
    Long i = list_.ListIndex() + 1;
    QueueWatch watch(core_.runtime().queue());
    for (;; ++i) {
        if (i > last())
            return;
        if (stopsWheel(p, i))
            break;
        core_.yield(p, watch);
        if (i == last())
            return;
    }
    if (list_.ListIndex() < last()) {
        core_.yield(p);
        list_.letListIndex(i);
        core_.yield(p);
    }
}

void Scroller::wheelIndexUp(Procedure& p, Integer Rotation) {
    // Wanted: the turn is added, so that only row 0 or no row at all takes the short way.
    if (static_cast<Double>(list_.ListIndex()) + Rotation <= 0 || list_.ListIndex() <= 0) {
        list_.letListIndex(0);
        return;
    }
    QueueWatch watch(core_.runtime().queue());
    for (Long i = list_.ListIndex() - 1; i >= 0; --i) {
        if (stopsWheel(p, i)) {
            if (list_.ListIndex() > 0) {
                core_.yield(p);
                list_.letListIndex(i);
                core_.yield(p);
            }
            break;
        }
        core_.yield(p, watch);
    }
    if (list_.ListIndex() < VS_->Value()) {
        VS_->letValue(list_.ListIndex());
        p.raise([&] { core_.events().Scroll(); });
    }
}

} // namespace lumtex
