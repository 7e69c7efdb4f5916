/// Platform events that go on to the host, with nothing added.
#include "model/list_view.h"

namespace lumtex {

namespace {

constexpr Integer automaticDrag = 2;
constexpr Long copyOrMove = 3;

} // namespace

void lmListView::UserControl_Click() {
    Procedure p = procedure(u"UserControl_Click");
    p.raise([&] { events().Click(); });
}

void lmListView::UserControl_KeyPress(Integer KeyAscii) {
    Procedure p = procedure(u"UserControl_KeyPress");
    p.raise([&] { events().KeyPress(KeyAscii); });
}

void lmListView::UserControl_OLECompleteDrag(Long& Effect) {
    Procedure p = procedure(u"UserControl_OLECompleteDrag");
    p.raise([&] { events().OLECompleteDrag(Effect); });
}

void lmListView::UserControl_OLEDragDrop(
    const DragData& Data, Long& Effect, Integer& Button, Integer& Shift, Single& X, Single& Y) {
    Procedure p = procedure(u"UserControl_OLEDragDrop");
    DragData carried = Data;
    p.raise([&] { events().OLEDragDrop(carried, Effect, Button, Shift, X, Y); });
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
    p.raise([&] { events().OLEDragOver(carried, Effect, Button, Shift, X, Y, State); });
}

void lmListView::UserControl_OLEGiveFeedback(Long& Effect, bool& DefaultCursors) {
    Procedure p = procedure(u"UserControl_OLEGiveFeedback");
    p.raise([&] { events().OLEGiveFeedback(Effect, DefaultCursors); });
}

void lmListView::UserControl_OLESetData(const DragData& Data, Integer& DataFormat) {
    Procedure p = procedure(u"UserControl_OLESetData");
    DragData carried = Data;
    p.raise([&] { events().OLESetData(carried, DataFormat); });
}

void lmListView::UserControl_OLEStartDrag(const DragData& Data, Long& AllowedEffects) {
    Procedure p = procedure(u"UserControl_OLEStartDrag");
    if (properties.OLEDragMode == automaticDrag)
        AllowedEffects = copyOrMove;
    DragData carried = Data;
    p.raise([&] { events().OLEStartDrag(carried, AllowedEffects); });
}

} // namespace lumtex
