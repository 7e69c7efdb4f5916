/// A press on the control: what it hits, and what it does to selection, check box and editor.
#include "drawing/picture_size.h"
#include "interaction/check_box_zone.h"
#include "model/list_view.h"

namespace lumtex {

namespace {

constexpr Integer enterKey = 13;

/// Pixels on both sides of a header that belong to the dividers.
constexpr Single dividerMargin = 5;

} // namespace

/// Any button counts.
void lmListView::UserControl_MouseDown(Integer Button, Integer Shift, Single X, Single Y) {
    Procedure p = procedure(u"UserControl_MouseDown");
    // Wanted: a press on an empty list is not even remembered.
    if (ColumnsCount() != 0 || RowsCount() != 0) {
        mouse_.lastMouseX = X;
        mouse_.lastMouseY = Y;
        mouse_.lastMouseButton = Button;
        press(X, Y, p);
        selection_.selectOnIndexSet = true;
    }
    p.raise([&] { events_->MouseDown(Button, Shift, X, Y); });
}

void lmListView::press(Single X, Single Y, Procedure& p) {
    headerPress_.pressPending = true;
    selection_.selectOnIndexSet = false;
    selection_.indexScrollArmed = false;
    headerPress_.currentColumn = -1;
    if (txtEdit->Visible()) {
        Integer key = enterKey;
        textBoxKeyPress(key);
    }
    pressColumn(X, Y);
    if (RowsCount() < 1 || ColumnsCount() < 1) {
        Redraw();
        return;
    }
    // Wanted: with hidden headers the rows are looked for from 0 on, while their colour starts at 1.
    const bool onBody = properties_.HideColumnHeaders || Y > static_cast<Single>(ColumnHeight());
    if (!onBody || X >= paint_.columnsRight)
        return;
    if (const std::optional<Long> row = rowPressed(Y, p))
        pressRow(*row, X, Y, p);
}

/// A header is held down from here only well inside its edges; a paint may still decide otherwise.
void lmListView::pressColumn(Single X, Single Y) {
    const std::optional<ColumnHit> hit = columnUnder(X);
    if (!hit)
        return;
    headerPress_.currentColumn = hit->index;
    if (!properties_.HideColumnHeaders && Y <= static_cast<Single>(ColumnHeight()) &&
        X > hit->left + dividerMargin && X < hit->left + hit->width - dividerMargin)
        headerPress_.pressedColumn = hit->index;
}

void lmListView::pressRow(Long row, Single X, Single Y, Procedure& p) {
    const bool wasSelected = p.value<bool>([&] { return recordAt(row).Selected; });
    pressSelection(row, p);
    // Wanted: whatever MultiSelect says, Control takes the selection from the current row.
    const bool selected = !selection_.ctrlDown || !wasSelected;
    p.step([&] {
        const Long current = RowIndex() - 1;
        recordAt(current).Selected = selected;
    });

    if (inCheckBoxZone(X, Y, p))
        toggleCheckBox(p);
    else
        Redraw();

    const Long& column = headerPress_.currentColumn;
    if (properties_.AllowEdit && edit_.lastClickColumn == column && edit_.lastClickRow == row) {
        if (ItemAllowEdit(row + 1, column + 1))
            SetEdit(row + 1, column + 1);
        return;
    }
    StopEdit();
    edit_.lastClickColumn = column;
    edit_.lastClickRow = row;
    p.raise([&] { events_->ItemDown(row + 1, column + 1); });
}

// Wanted: a press at the place of a check box toggles the cell, whether its column draws boxes or not.
bool lmListView::inCheckBoxZone(Single X, Single Y, Procedure& p) {
    const Surface& surface = window_->surface();
    const Picture& box = *artwork_.img[1];
    if (!checkBoxRows(mouse_.rowScanTop, GetPictureHeight(surface, box)).contains(Y))
        return false;
    return p.condition(
        [&] {
            const Long row = ListIndex() + 1;
            const cItemAlign alignment = ItemIconAlignment(row, headerPress_.currentColumn + 1);
            const ColumnHeader& column = columnAt(headerPress_.currentColumn);
            const auto zone = checkBoxZone(alignment,
                                           scaleX(surface, column.Left, twips, pixels),
                                           scaleX(surface, column.Width, twips, pixels),
                                           GetPictureWidth(surface, box),
                                           HS->Value());
            return zone && zone->contains(X);
        },
        false);
}

void lmListView::toggleCheckBox(Procedure& p) {
    const Long& column = headerPress_.currentColumn;
    const Long row = RowIndex();
    bool cancel = false;
    const bool wanted = !ItemChecked(row, column + 1);
    p.raise([&] { events_->ItemCheck(row, column + 1, wanted, cancel); });
    if (cancel) {
        Redraw();
        return;
    }
    letItemChecked(row, column + 1, !ItemChecked(row, column + 1));
    Redraw();
    p.raise([&] { events_->ItemChecked(row, column + 1, ItemChecked(row, column + 1)); });
}

} // namespace lumtex
