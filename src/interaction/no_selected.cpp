/// Taking the selection from all rows.
#include "model/list_view.h"

namespace lumtex {

/// With an index, counted from 0, that row alone ends up selected.
void lmListView::NoSelected(std::optional<Long> index) {
    if (RowsCount() == 0)
        return;
    Procedure p = procedure(u"NoSelected");
    for (RowRecord& row : rows_)
        row.Selected = false;
    if (index)
        p.step([&] { rowAt(Variant(*index + 1)).Selected = true; });
}

} // namespace lumtex
