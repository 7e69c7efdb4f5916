/// Keys: the arrows that move the current row, and the flags that presses ask for.
#include "interaction/selection.h"
#include "model/list_view.h"
#include "platform/keys.h"
#include "scroll/scroller.h"
#include "values/rounding.h"

namespace lumtex {

void Selection::keyDown(Integer KeyCode, Integer Shift) {
    Procedure p = procedure(u"UserControl_KeyDown");
    // The host may turn the key into another one.
    p.raise([&] { core_.events().KeyDown(KeyCode, Shift); });
    // Wanted: only the key pressed last counts, so Shift and Control are never held together.
    state_.shiftDown = KeyCode == keys::shift;
    state_.ctrlDown = KeyCode == keys::control;
    const Long visible = core_.scroller->VisibleItems();
    if (records_.RowsCount() == 0)
        return;
    if (KeyCode == keys::down)
        arrowDown(visible, p);
    else if (KeyCode == keys::up)
        arrowUp(visible, p);
}

void Selection::keyUp(Integer KeyCode, Integer Shift) {
    Procedure p = procedure(u"UserControl_KeyUp");
    // Wanted: letting go of any key clears both.
    state_.shiftDown = false;
    state_.ctrlDown = false;
    p.raise([&] { core_.events().KeyUp(KeyCode, Shift); });
}

bool Selection::rowCanBeCurrent(Long row, Procedure& p) {
    return p.condition([&] { return records_.recordAt(row).Enabled; }, false);
}

void Selection::arrowDown(Long visible, Procedure& p) {
    Long row = ListIndex() + 1;
    while (row < records_.RowsCount() && !rowCanBeCurrent(row, p))
        ++row;
    if (row >= records_.RowsCount())
        return;
    if (ListIndex() < records_.RowsCount() - 1) {
        SetNewSelected(row);
        state_.selectOnIndexSet = false;
        state_.indexScrollArmed = false;
        letListIndex(row);
        if (p.condition([&] { return differenceOf(ListIndex(), list_.TopIndex()) >= visible; }, true))
            p.step([&] { list_.letTopIndex(sumOf(differenceOf(ListIndex(), visible), 1)); });
        if (list_.TopIndex() > ListIndex())
            list_.letTopIndex(ListIndex());
    }
    state_.selectOnIndexSet = true;
    list_.Redraw();
}

void Selection::arrowUp(Long visible, Procedure& p) {
    Long row = ListIndex() - 1;
    while (row >= 0 && !rowCanBeCurrent(row, p))
        --row;
    if (row < 0)
        return;
    if (ListIndex() > 0) {
        SetNewSelected(row);
        // Wanted: unlike Down, it leaves the scrolling of the index as it is.
        state_.selectOnIndexSet = false;
        letListIndex(row);
        if (p.condition([&] { return differenceOf(ListIndex(), list_.TopIndex()) < 0; }, true))
            list_.letTopIndex(ListIndex());
        if (p.condition([&] { return sumOf(list_.TopIndex(), visible) < ListIndex(); }, true))
            list_.letTopIndex(ListIndex());
    }
    state_.selectOnIndexSet = true;
    list_.Redraw();
}

} // namespace lumtex
