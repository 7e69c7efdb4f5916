/// Platform events that go on to the host, with little or nothing added.
#include "model/list_view.h"
#include "platform/rounding.h"

namespace lumtex {

namespace {

constexpr Integer automaticDrag = 2;
constexpr Long copyOrMove = 3;

} // namespace

void lmListView::UserControl_Click() {
    events_.Click();
}

// Wanted: opens the editor by the cell's permission alone, whatever AllowEdit says.
void lmListView::UserControl_DblClick() {
    events_.DblClick();
    if (edit_.lastClickRow < 0 || edit_.lastClickColumn < 0)
        return;
    // The host may choose another cell in the event.
    const auto row = [&] { return sumOf(edit_.lastClickRow, 1); };
    const auto column = [&] { return sumOf(edit_.lastClickColumn, 1); };
    Procedure p = procedure(u"UserControl_DblClick");
    p.step([&] { events_.ItemDblClick(row(), column()); });
    if (p.condition([&] { return ItemAllowEdit(row(), column()); }, true))
        p.step([&] { SetEdit(row(), column()); });
}

void lmListView::UserControl_OLECompleteDrag(Long& Effect) {
    events_.OLECompleteDrag(Effect);
}

void lmListView::UserControl_OLEDragDrop(
    const DragData& Data, Long& Effect, Integer& Button, Integer& Shift, Single& X, Single& Y) {
    DragData carried = Data;
    events_.OLEDragDrop(carried, Effect, Button, Shift, X, Y);
}

void lmListView::UserControl_OLEDragOver(const DragData& Data,
                                         Long& Effect,
                                         Integer& Button,
                                         Integer& Shift,
                                         Single& X,
                                         Single& Y,
                                         Integer& State) {
    DragData carried = Data;
    events_.OLEDragOver(carried, Effect, Button, Shift, X, Y, State);
}

void lmListView::UserControl_OLEGiveFeedback(Long& Effect, bool& DefaultCursors) {
    events_.OLEGiveFeedback(Effect, DefaultCursors);
}

void lmListView::UserControl_OLESetData(const DragData& Data, Integer& DataFormat) {
    DragData carried = Data;
    events_.OLESetData(carried, DataFormat);
}

void lmListView::UserControl_OLEStartDrag(const DragData& Data, Long& AllowedEffects) {
    if (properties_.OLEDragMode == automaticDrag)
        AllowedEffects = copyOrMove;
    DragData carried = Data;
    events_.OLEStartDrag(carried, AllowedEffects);
}

} // namespace lumtex
