/// Taking the selection from all rows.
#include "interaction/shared_count.h"
#include "model/list_view.h"
#include "platform/queue_watch.h"

namespace lumtex {

/// With an index, counted from 0, that row alone ends up selected.
void lmListView::NoSelected(std::optional<Long> index) {
    if (RowsCount() == 0)
        return;
    Procedure p = procedure(u"NoSelected");
    for (RowRecord& row : rows_)
        row.Selected = false;
    if (index)
        p.step([&] { recordAt(*index).Selected = true; });
}

// Wanted: each row is a turn of the host, and whoever counts in the same member during it, a paint for one,
// leaves rows out.

/// `index` counts from 0.
void lmListView::SetNewSelected(Long index) {
    Procedure p = procedure(u"SetNewSelected");
    QueueWatch watch(runtime().queue());
    countShared(paint_.scanIndex, 0, RowsCount() - 1, [&] {
        if (!p.step([&] { recordAt(paint_.scanIndex).Selected = false; }))
            watch.hostRan();
        yield(p, watch);
        return true;
    });
    p.step([&] { recordAt(index).Selected = true; });
}

} // namespace lumtex
