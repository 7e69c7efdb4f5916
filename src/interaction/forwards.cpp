/// Platform events that go on to the host, with little or nothing added.
#include "model/list_view.h"
#include "values/rounding.h"

namespace lumtex {

namespace {

constexpr Integer automaticDrag = 2;
constexpr Long copyOrMove = 3;

} // namespace

void lmListView::UserControl_Click() {
    Procedure p = procedure(u"UserControl_Click");
    p.raise([&] { events_->Click(); });
}

// Wanted: opens the editor by the cell's permission alone, whatever AllowEdit says.
void lmListView::UserControl_DblClick() {
    Procedure p = procedure(u"UserControl_DblClick");
    p.raise([&] { events_->DblClick(); });
    if (edit_.lastClickRow < 0 || edit_.lastClickColumn < 0)
        return;
    // The host may choose another cell in the event.
    const auto row = [&] { return sumOf(edit_.lastClickRow, 1); };
    const auto column = [&] { return sumOf(edit_.lastClickColumn, 1); };
    p.raise([&] { events_->ItemDblClick(row(), column()); });
    if (p.condition([&] { return ItemAllowEdit(row(), column()); }, true))
        p.step([&] { SetEdit(row(), column()); });
}

void lmListView::UserControl_OLECompleteDrag(Long& Effect) {
    Procedure p = procedure(u"UserControl_OLECompleteDrag");
    p.raise([&] { events_->OLECompleteDrag(Effect); });
}

void lmListView::UserControl_OLEDragDrop(
    const DragData& Data, Long& Effect, Integer& Button, Integer& Shift, Single& X, Single& Y) {
    Procedure p = procedure(u"UserControl_OLEDragDrop");
    DragData carried = Data;
    p.raise([&] { events_->OLEDragDrop(carried, Effect, Button, Shift, X, Y); });
}

void lmListView::UserControl_OLEDragOver(const DragData& Data,
                                         Long& Effect,
                                         Integer& Button,
                                         Integer& Shift,
                                         Single& X,
                                         Single& Y,
                                         Integer& State) {
    Procedure p = procedure(u"UserControl_OLEDragOver");
    DragData carried = Data;
    p.raise([&] { events_->OLEDragOver(carried, Effect, Button, Shift, X, Y, State); });
}

void lmListView::UserControl_OLEGiveFeedback(Long& Effect, bool& DefaultCursors) {
    Procedure p = procedure(u"UserControl_OLEGiveFeedback");
    p.raise([&] { events_->OLEGiveFeedback(Effect, DefaultCursors); });
}

void lmListView::UserControl_OLESetData(const DragData& Data, Integer& DataFormat) {
    Procedure p = procedure(u"UserControl_OLESetData");
    DragData carried = Data;
    p.raise([&] { events_->OLESetData(carried, DataFormat); });
}

void lmListView::UserControl_OLEStartDrag(const DragData& Data, Long& AllowedEffects) {
    Procedure p = procedure(u"UserControl_OLEStartDrag");
    if (properties_.OLEDragMode == automaticDrag)
        AllowedEffects = copyOrMove;
    DragData carried = Data;
    p.raise([&] { events_->OLEStartDrag(carried, AllowedEffects); });
}

} // namespace lumtex
