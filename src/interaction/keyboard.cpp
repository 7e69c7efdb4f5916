/// Keys: the arrows that move the current row, and the flags that presses ask for.
#include "model/list_view.h"
#include "values/rounding.h"

namespace lumtex {

namespace {

/// The classic virtual key numbers.
constexpr Integer shiftKey = 16;
constexpr Integer controlKey = 17;
constexpr Integer upKey = 38;
constexpr Integer downKey = 40;

} // namespace

void lmListView::UserControl_KeyDown(Integer KeyCode, Integer Shift) {
    Procedure p = procedure(u"UserControl_KeyDown");
    // The host may turn the key into another one.
    p.raise([&] { events_->KeyDown(KeyCode, Shift); });
    // Wanted: only the key pressed last counts, so Shift and Control are never held together.
    selection_.shiftDown = KeyCode == shiftKey;
    selection_.ctrlDown = KeyCode == controlKey;
    const Long visible = VisibleItems();
    if (RowsCount() == 0)
        return;
    if (KeyCode == downKey)
        arrowDown(visible, p);
    else if (KeyCode == upKey)
        arrowUp(visible, p);
}

void lmListView::UserControl_KeyPress(Integer KeyAscii) {
    Procedure p = procedure(u"UserControl_KeyPress");
    p.raise([&] { events_->KeyPress(KeyAscii); });
}

void lmListView::UserControl_KeyUp(Integer KeyCode, Integer Shift) {
    Procedure p = procedure(u"UserControl_KeyUp");
    // Wanted: letting go of any key clears both.
    selection_.shiftDown = false;
    selection_.ctrlDown = false;
    p.raise([&] { events_->KeyUp(KeyCode, Shift); });
}

bool lmListView::rowCanBeCurrent(Long row, Procedure& p) {
    return p.condition([&] { return recordAt(row).Enabled; }, false);
}

void lmListView::arrowDown(Long visible, Procedure& p) {
    Long row = ListIndex() + 1;
    while (row < RowsCount() && !rowCanBeCurrent(row, p))
        ++row;
    if (row >= RowsCount())
        return;
    if (ListIndex() < RowsCount() - 1) {
        SetNewSelected(row);
        selection_.selectOnIndexSet = false;
        selection_.indexScrollArmed = false;
        letListIndex(row);
        if (p.condition([&] { return differenceOf(ListIndex(), TopIndex()) >= visible; }, true))
            p.step([&] { letTopIndex(sumOf(differenceOf(ListIndex(), visible), 1)); });
        if (TopIndex() > ListIndex())
            letTopIndex(ListIndex());
    }
    selection_.selectOnIndexSet = true;
    Redraw();
}

void lmListView::arrowUp(Long visible, Procedure& p) {
    Long row = ListIndex() - 1;
    while (row >= 0 && !rowCanBeCurrent(row, p))
        --row;
    if (row < 0)
        return;
    if (ListIndex() > 0) {
        SetNewSelected(row);
        // Wanted: unlike Down, it leaves the scrolling of the index as it is.
        selection_.selectOnIndexSet = false;
        letListIndex(row);
        if (p.condition([&] { return differenceOf(ListIndex(), TopIndex()) < 0; }, true))
            letTopIndex(ListIndex());
        if (p.condition([&] { return sumOf(TopIndex(), visible) < ListIndex(); }, true))
            letTopIndex(ListIndex());
    }
    selection_.selectOnIndexSet = true;
    Redraw();
}

} // namespace lumtex
