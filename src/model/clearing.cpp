/// Emptying the list.
#include "model/list_view.h"

namespace lumtex {

void lmListView::RowsClear() {
    Procedure p = procedure(u"RowsClear");
    // Wanted: the array keeps one blank element; the flag alone tells that there are no rows.
    p.step([&] { records.clearRows(); });
    if (ColumnsCount() >= 1) {
        p.step([&] {
            for (Long column = 0; column < ColumnsCount(); ++column)
                records.columnAt(column).ItemsChecked = 0;
        });
    }
    CheckForRedraw();
    if (properties.AutoCheckScroll)
        CheckScroll();
}

void lmListView::ColumnsClear() {
    Procedure p = procedure(u"ColumnsClear");
    // Wanted: rows and their cells stay as they are, with their old count of cells.
    p.step([&] { records.clearColumns(); });
    if (properties.AutoCheckScroll)
        CheckScroll();
    CheckForRedraw();
}

} // namespace lumtex
