/// A release: the drop of a row, the end of what a press on a header began, the click on a cell.
#include "interaction/cell_editor.h"
#include "interaction/mouse.h"
#include "interaction/row_drag.h"
#include "model/list_view_events.h"

namespace lumtex {

void Mouse::up(Integer Button, Integer Shift, Single X, Single Y) {
    Procedure p = procedure(u"UserControl_MouseUp");
    p.step([&] { tmrMouseAction_->letEnabled(false); });
    if (properties_.AllowItemMoving)
        core_.rowDrag->dropRow();
    if (records_.ColumnsCount() != 0) {
        remember(Button, X, Y);
        core_.headerGesture->release(X, p);
    }
    p.raise([&] { core_.events().MouseUp(Button, Shift, X, Y); });
    if (records_.RowsCount() < 1 || records_.ColumnsCount() < 1 || core_.editor->lastClickRow() < 0 ||
        core_.editor->lastClickColumn() < 0)
        return;
    if (const std::optional<Long> row = rowUnder(Y, RowEdge::excluded, p))
        releaseOnRow(*row, p);
}

/// `row` counts from 0. The cell of a release is remembered as that of a press is, so a press on it counts as
/// the second one. But the press that opened the editor is often held until a tick of the hover timer finds
/// the editor under the pointer, so that its release hits no column: what is typed still belongs to the cell
/// under edit.
void Mouse::releaseOnRow(Long row, Procedure& p) {
    // Host code may press elsewhere meanwhile.
    const auto column = [&] { return core_.headerGesture->currentColumn(); };
    p.raise([&] { core_.events().ItemUp(row + 1, column() + 1); });
    if (core_.editor->isLastClick(row, column()))
        p.raise([&] { core_.events().ItemClick(row + 1, column() + 1); });
    if (core_.editor->isOpen() && column() < 0)
        return;
    core_.editor->letLastClickRow(row);
    core_.editor->letLastClickColumn(column());
}

} // namespace lumtex
