/// What a press does to the current row and to the selected rows.
#include "model/list_view.h"

#include <algorithm>

namespace lumtex {

/// `row` counts from 0. Setting the index rewrites no selection here, since a press holds that off.
void lmListView::pressSelection(Long row, Procedure& p) {
    if (!properties_.MultiSelect || (!selection_.ctrlDown && !selection_.shiftDown)) {
        NoSelected();
        selection_.selectionAnchor = row;
        letListIndex(row);
    } else if (selection_.ctrlDown) {
        selection_.selectionAnchor = row;
        letListIndex(row);
    } else if (selection_.selectionAnchor != -1) {
        NoSelected();
        const auto [first, last] = std::minmax({selection_.selectionAnchor, row});
        for (Long each = first; each <= last; ++each) {
            p.step([&] {
                RowRecord& record = recordAt(each);
                if (record.Enabled)
                    record.Selected = true;
            });
        }
        letListIndex(row);
    }
}

} // namespace lumtex
