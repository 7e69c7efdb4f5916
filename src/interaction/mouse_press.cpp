/// A press on the control: what it hits, and what it does to selection, check box and editor.
#include "drawing/picture_size.h"
#include "interaction/cell_editor.h"
#include "interaction/check_box_zone.h"
#include "interaction/mouse.h"
#include "interaction/selection.h"
#include "model/list_view.h"
#include "render/painting.h"
#include "scroll/scroller.h"

namespace lumtex {

/// Any button counts.
void Mouse::down(Integer Button, Integer Shift, Single X, Single Y) {
    Procedure p = procedure(u"UserControl_MouseDown");
    // Wanted: a press on an empty list is not even remembered.
    if (records_.ColumnsCount() != 0 || records_.RowsCount() != 0) {
        remember(Button, X, Y);
        press(X, Y, p);
        core_.selection->endPress();
    }
    p.raise([&] { core_.events().MouseDown(Button, Shift, X, Y); });
}

void Mouse::press(Single X, Single Y, Procedure& p) {
    core_.headerGesture->beginPress();
    core_.selection->beginPress();
    core_.editor->acceptIfOpen();
    core_.headerGesture->pressColumn(X, Y);
    if (records_.RowsCount() < 1 || records_.ColumnsCount() < 1) {
        list_.Redraw();
        return;
    }
    // Wanted: with hidden headers the rows are looked for from 0 on, while their colour starts at 1.
    const bool onBody =
        properties_.HideColumnHeaders || Y > static_cast<Single>(core_.painting->ColumnHeight());
    if (!onBody || X >= core_.painting->columnsRight())
        return;
    if (const std::optional<Long> row = rowPressed(Y, p))
        pressRow(
            *row, [&] { return inCheckBoxZone(X, Y, p); }, p);
}

void Mouse::activate(Long row, Long column, Aim aim) {
    Procedure p = procedure(u"Activate");
    core_.headerGesture->beginPress();
    core_.selection->beginPress();
    core_.editor->acceptIfOpen();
    core_.headerGesture->pressOn(column);
    // Host code may have taken the row away, as the editor closed and again in the press.
    const auto isThere = [&] { return row < records_.RowsCount() && column < records_.ColumnsCount(); };
    if (isThere())
        pressRow(
            row, [&] { return aim == Aim::checkBox; }, p);
    core_.selection->endPress();
    if (isThere())
        releaseOnRow(row, p);
    core_.headerGesture->endPressOn();
}

/// `onCheckBox` is asked once the row is the current one.
template <class OnCheckBox>
void Mouse::pressRow(Long row, OnCheckBox onCheckBox, Procedure& p) {
    const bool wasSelected = p.value<bool>([&] { return records_.recordAt(row).Selected; });
    core_.selection->pressSelection(row, p);
    // Wanted: whatever MultiSelect says, Control takes the selection from the current row.
    const bool selected = !core_.selection->ctrlDown() || !wasSelected;
    p.step([&] {
        const Long current = list_.RowIndex() - 1;
        records_.recordAt(current).Selected = selected;
    });

    if (onCheckBox())
        toggleCheckBox(p);
    else
        list_.Redraw();

    // Host code may have pressed elsewhere meanwhile.
    const auto column = [&] { return core_.headerGesture->currentColumn(); };
    if (properties_.AllowEdit && core_.editor->isLastClick(row, column())) {
        if (list_.ItemAllowEdit(row + 1, column() + 1))
            list_.SetEdit(row + 1, column() + 1);
        return;
    }
    list_.StopEdit();
    core_.editor->letLastClickColumn(column());
    core_.editor->letLastClickRow(row);
    p.raise([&] { core_.events().ItemDown(row + 1, column() + 1); });
}

// Wanted: a press at the place of a check box toggles the cell, whether its column draws boxes or not.
bool Mouse::inCheckBoxZone(Single X, Single Y, Procedure& p) {
    const Surface& surface = window_.surface();
    const Picture& box = *core_.painting->artwork().img[1];
    if (!checkBoxRows(state_.rowScanTop, drawing::GetPictureHeight(surface, box)).contains(Y))
        return false;
    return p.condition(
        [&] {
            const Long row = list_.ListIndex() + 1;
            const cItemAlign alignment =
                list_.ItemIconAlignment(row, core_.headerGesture->currentColumn() + 1);
            const ColumnHeader& column = records_.columnAt(core_.headerGesture->currentColumn());
            const auto zone = checkBoxZone(alignment,
                                           scaleX(surface, column.Left, Unit::twips, Unit::pixels),
                                           scaleX(surface, column.Width, Unit::twips, Unit::pixels),
                                           drawing::GetPictureWidth(surface, box),
                                           core_.scroller->horizontal().Value());
            return zone && zone->contains(X);
        },
        false);
}

void Mouse::toggleCheckBox(Procedure& p) {
    // Host code may press elsewhere meanwhile.
    const auto column = [&] { return core_.headerGesture->currentColumn() + 1; };
    const Long row = list_.RowIndex();
    bool cancel = false;
    const bool wanted = !list_.ItemChecked(row, column());
    p.raise([&] { core_.events().ItemCheck(row, column(), wanted, cancel); });
    if (cancel) {
        list_.Redraw();
        return;
    }
    list_.letItemChecked(row, column(), !list_.ItemChecked(row, column()));
    list_.Redraw();
    p.raise([&] { core_.events().ItemChecked(row, column(), list_.ItemChecked(row, column())); });
}

} // namespace lumtex
