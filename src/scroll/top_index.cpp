/// The first row shown.
#include "scroll/scroller.h"

#include <algorithm>

namespace lumtex {

void Scroller::letTopIndex(Long topIndex) {
    Procedure p = procedure(u"TopIndex");
    const Long visible = VisibleItems();
    topIndex = std::min(std::max(topIndex, Long{0}), records_.RowsCount() - 1);
    state_.topIndex = topIndex;
    p.step([&] { core_.host().PropertyChanged(u"TopIndex"); });
    if (VS_->Max() < records_.RowsCount() - visible)
        VS_->letMax(records_.RowsCount() - visible);
    // Wanted: twice in a row, and never compared with the bar's end.
    VS_->letValue(topIndex);
    VS_->letValue(topIndex);
    core_.CheckForRedraw();
}

} // namespace lumtex
