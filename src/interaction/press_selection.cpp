/// What a press does to the current row and to the selected rows.
#include "interaction/selection.h"

#include <algorithm>

namespace lumtex {

/// `row` counts from 0. Setting the index rewrites no selection here, since a press holds that off.
void Selection::pressSelection(Long row, Procedure& p) {
    if (!properties_.MultiSelect || (!state_.ctrlDown && !state_.shiftDown)) {
        NoSelected();
        state_.selectionAnchor = row;
        letListIndex(row);
    } else if (state_.ctrlDown) {
        state_.selectionAnchor = row;
        letListIndex(row);
    } else if (state_.selectionAnchor != -1) {
        NoSelected();
        const auto [first, last] = std::minmax({state_.selectionAnchor, row});
        for (Long each = first; each <= last; ++each) {
            p.step([&] {
                RowRecord& record = records_.recordAt(each);
                if (record.Enabled)
                    record.Selected = true;
            });
        }
        letListIndex(row);
    }
}

} // namespace lumtex
