/// How many rows fit entirely under the headers.
#include "render/painting.h"
#include "scroll/scroller.h"
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

Long Scroller::VisibleItems() {
    Procedure p = procedure(u"VisibleItems");
    return p.value<Long>([&] {
        state_.lastRowHidden = true;
        state_.visibleRowCount = -1;
        if (records_.RowsCount() == 0)
            return Long{0};

        const Surface& surface = window_.surface();
        const Single barHeight = HS_->Tag == u"True" ? HS_->Height() : 0;
        const Single available = static_cast<Single>(surface.scaleHeight()) - barHeight;
        if (properties_.RowsDynamic) {
            // Wanted: the walk starts at row 0 whatever the top row is, and a row never painted has no
            // height.
            auto y = static_cast<Single>(core_.painting->ColumnHeight());
            const RowArray& rows = records_.rows();
            while (y <= available) {
                // Rows without a height fit wherever the one before does.
                const Long next = state_.visibleRowCount + 1;
                state_.visibleRowCount =
                    static_cast<Long>(rows.nextWithHeight(static_cast<std::size_t>(next)));
                if (state_.visibleRowCount > records_.upperBoundOfRows())
                    break;
                y += records_.recordAt(state_.visibleRowCount).Height;
            }
            return state_.visibleRowCount;
        }

        const Long height = roundToLong(scaleY(surface, properties_.RowHeight, Unit::twips, Unit::pixels));
        Double y = core_.painting->ColumnHeight();
        if (height > 0) {
            const Double turns = turnsOf(y, available, height);
            state_.visibleRowCount = roundToLong(state_.visibleRowCount + turns);
            y += turns * height;
        }
        // Wanted: with a positive height this test cannot be met.
        if (y + barHeight + height / 2.0 < surface.scaleHeight())
            state_.lastRowHidden = false;
        return state_.visibleRowCount;
    });
}

} // namespace lumtex
