/// Which bars the list needs, and their ranges.
#include "interaction/shared_count.h"
#include "render/painting.h"
#include "scroll/scroller.h"
#include "values/rounding.h"

namespace lumtex {

void Scroller::CheckScroll() {
    Procedure p = procedure(u"CheckScroll");
    if (records_.ColumnsCount() == 0) {
        p.step([&] { VS_->letVisible(false); });
        p.step([&] { HS_->letVisible(false); });
        VS_->letMax(0);
        VS_->letValue(0);
        HS_->letMax(0);
        HS_->letValue(0);
        return;
    }

    const Surface& surface = window_.surface();
    Single total = 0;
    p.step([&] {
        countShared(core_.counters.scanIndex, 0, records_.ColumnsCount() - 1, [&] {
            total += core_.painting->columnWidthInPixels(core_.counters.scanIndex);
            return true;
        });
    });
    // Wanted: the whole width counts, although the vertical bar takes some of it away.
    if (total > static_cast<Single>(surface.scaleWidth())) {
        HS_->letMin(0);
        const Long oldMax = HS_->Max();
        const Single range = total - static_cast<Single>(surface.scaleWidth()) +
                             scaleX(surface, properties_.EmptyColumnFieldWidth, Unit::twips, Unit::pixels);
        p.step([&] { HS_->letMax(roundToLong(range)); });
        // Wanted: any shrinking of the range throws the view back to the left edge.
        if (range < static_cast<Single>(oldMax))
            HS_->letValue(0);
        HS_->Tag = u"True";
    } else {
        HS_->Tag = u"False";
        HS_->letMax(0);
        HS_->letValue(0);
    }

    if (properties_.RowsDynamic) {
        if (records_.RowsCount() < 2) {
            VS_->Tag = u"False";
            VS_->letMax(0);
            VS_->letValue(0);
        } else {
            VS_->letMin(0);
            VS_->letMax(records_.RowsCount() - 1);
            VS_->Tag = u"True";
        }
    } else if (VisibleItems() >= records_.RowsCount()) {
        VS_->Tag = u"False";
        VS_->letMax(0);
        VS_->letValue(0);
    } else {
        VS_->letMin(0);
        const Long visible = VisibleItems();
        VS_->letMax(records_.RowsCount() - visible + (state_.lastRowHidden ? 0 : 1));
        if (VS_->Max() >= 1) {
            // Wanted: a hidden horizontal bar is widened too.
            p.step([&] { HS_->letMax(roundToLong(static_cast<Double>(HS_->Max()) + VS_->Width())); });
            VS_->Tag = u"True";
        } else {
            VS_->Tag = u"False";
        }
    }
    CheckScrollPlacement();
}

} // namespace lumtex
