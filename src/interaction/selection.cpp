/// Taking the selection from all rows, and the two switches of a press.
#include "interaction/selection.h"

#include "interaction/shared_count.h"
#include "platform/queue_watch.h"

namespace lumtex {

/// With an index, counted from 0, that row alone ends up selected.
void Selection::NoSelected(std::optional<Long> index) {
    if (records_.RowsCount() == 0)
        return;
    Procedure p = procedure(u"NoSelected");
    for (RowRecord& row : records_.rows())
        row.Selected = false;
    if (index)
        p.step([&] { records_.recordAt(*index).Selected = true; });
}

void Selection::beginPress() {
    state_.selectOnIndexSet = false;
    state_.indexScrollArmed = false;
}

// Wanted: each row is a turn of the host, and whoever counts in the same member during it, a paint for one,
// leaves rows out.

/// `index` counts from 0.
void Selection::SetNewSelected(Long index) {
    Procedure p = procedure(u"SetNewSelected");
    QueueWatch watch(core_.runtime().queue());
    countShared(core_.counters.scanIndex, 0, records_.RowsCount() - 1, [&] {
        if (!p.step([&] { records_.recordAt(core_.counters.scanIndex).Selected = false; }))
            watch.hostRan();
        core_.yield(p, watch);
        return true;
    });
    p.step([&] { records_.recordAt(index).Selected = true; });
}

} // namespace lumtex
