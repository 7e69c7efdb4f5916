/// How many rows fit entirely under the headers.
#include "model/list_view.h"
#include "values/rounding.h"

#include <cmath>

namespace lumtex {

namespace {

/// How often a walk from `first` on in steps of `step`, above 0, stands at or before `last`. Reckoned and not
/// walked: far below zero the walk would take billions of turns, or in Single not move at all.
Double turnsOf(Double first, Double last, Double step) {
    return first <= last ? std::floor((last - first) / step) + 1 : 0;
}

} // namespace

Long lmListView::VisibleItems() {
    Procedure p = procedure(u"VisibleItems");
    return p.value<Long>([&] {
        scroll_.lastRowHidden = true;
        scroll_.visibleRowCount = -1;
        if (RowsCount() == 0)
            return Long{0};

        const Surface& surface = window_->surface();
        const Single barHeight = HS->Tag == u"True" ? HS->Height() : 0;
        const Single available = static_cast<Single>(surface.scaleHeight()) - barHeight;
        if (properties_.RowsDynamic) {
            // Wanted: the walk starts at row 0 whatever the top row is, and a row never painted has no
            // height.
            auto y = static_cast<Single>(ColumnHeight());
            while (y <= available) {
                ++scroll_.visibleRowCount;
                if (scroll_.visibleRowCount > static_cast<Long>(rows_.size()) - 1)
                    break;
                y += rows_[static_cast<std::size_t>(scroll_.visibleRowCount)].Height;
            }
            return scroll_.visibleRowCount;
        }

        const Long height = roundToLong(scaleY(surface, properties_.RowHeight, twips, pixels));
        Double y = ColumnHeight();
        if (height > 0) {
            const Double turns = turnsOf(y, available, height);
            scroll_.visibleRowCount = roundToLong(scroll_.visibleRowCount + turns);
            y += turns * height;
        }
        // Wanted: with a positive height this test cannot be met.
        if (y + barHeight + height / 2.0 < surface.scaleHeight())
            scroll_.lastRowHidden = false;
        return scroll_.visibleRowCount;
    });
}

} // namespace lumtex
