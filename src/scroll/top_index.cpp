/// The first row shown.
#include "model/list_view.h"

#include <algorithm>

namespace lumtex {

void lmListView::letTopIndex(Long topIndex) {
    Procedure p = procedure(u"TopIndex");
    const Long visible = VisibleItems();
    topIndex = std::min(std::max(topIndex, Long{0}), RowsCount() - 1);
    scroll_.topIndex = topIndex;
    p.step([&] { host_->PropertyChanged(u"TopIndex"); });
    if (VS->Max() < RowsCount() - visible)
        VS->letMax(RowsCount() - visible);
    // Wanted: twice in a row, and never compared with the bar's end.
    VS->letValue(topIndex);
    VS->letValue(topIndex);
    CheckForRedraw();
}

} // namespace lumtex
