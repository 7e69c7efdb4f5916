/// A double click: its two events, and the editor.
#include "interaction/cell_editor.h"
#include "interaction/mouse.h"
#include "model/list_view.h"
#include "values/rounding.h"

namespace lumtex {

// Wanted: opens the editor by the cell's permission alone, whatever AllowEdit says.
void Mouse::doubleClick() {
    Procedure p = procedure(u"UserControl_DblClick");
    p.raise([&] { core_.events().DblClick(); });
    if (core_.editor->lastClickRow() < 0 || core_.editor->lastClickColumn() < 0)
        return;
    // The host may choose another cell in the event.
    const auto row = [&] { return sumOf(core_.editor->lastClickRow(), 1); };
    const auto column = [&] { return sumOf(core_.editor->lastClickColumn(), 1); };
    p.raise([&] { core_.events().ItemDblClick(row(), column()); });
    if (p.condition([&] { return list_.ItemAllowEdit(row(), column()); }, true))
        p.step([&] { list_.SetEdit(row(), column()); });
}

} // namespace lumtex
