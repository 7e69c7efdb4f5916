/// Which bars the list needs, and their ranges.
#include "interaction/shared_count.h"
#include "model/list_view.h"
#include "values/rounding.h"

namespace lumtex {

void lmListView::CheckScroll() {
    Procedure p = procedure(u"CheckScroll");
    if (ColumnsCount() == 0) {
        p.step([&] { VS->letVisible(false); });
        p.step([&] { HS->letVisible(false); });
        VS->letMax(0);
        VS->letValue(0);
        HS->letMax(0);
        HS->letValue(0);
        return;
    }

    const Surface& surface = window_->surface();
    Single total = 0;
    p.step([&] {
        countShared(paint_.scanIndex, 0, ColumnsCount() - 1, [&] {
            total += columnWidthInPixels(paint_.scanIndex);
            return true;
        });
    });
    // Wanted: the whole width counts, although the vertical bar takes some of it away.
    if (total > static_cast<Single>(surface.scaleWidth())) {
        HS->letMin(0);
        const Long oldMax = HS->Max();
        const Single range = total - static_cast<Single>(surface.scaleWidth()) +
                             scaleX(surface, properties_.EmptyColumnFieldWidth, twips, pixels);
        p.step([&] { HS->letMax(roundToLong(range)); });
        // Wanted: any shrinking of the range throws the view back to the left edge.
        if (range < static_cast<Single>(oldMax))
            HS->letValue(0);
        HS->Tag = u"True";
    } else {
        HS->Tag = u"False";
        HS->letMax(0);
        HS->letValue(0);
    }

    if (properties_.RowsDynamic) {
        if (RowsCount() < 2) {
            VS->Tag = u"False";
            VS->letMax(0);
            VS->letValue(0);
        } else {
            VS->letMin(0);
            VS->letMax(RowsCount() - 1);
            VS->Tag = u"True";
        }
    } else if (VisibleItems() >= RowsCount()) {
        VS->Tag = u"False";
        VS->letMax(0);
        VS->letValue(0);
    } else {
        VS->letMin(0);
        const Long visible = VisibleItems();
        VS->letMax(RowsCount() - visible + (scroll_.lastRowHidden ? 0 : 1));
        if (VS->Max() >= 1) {
            // Wanted: a hidden horizontal bar is widened too.
            p.step([&] { HS->letMax(roundToLong(static_cast<Double>(HS->Max()) + VS->Width())); });
            VS->Tag = u"True";
        } else {
            VS->Tag = u"False";
        }
    }
    CheckScrollPlacement();
}

} // namespace lumtex
