/// The current row.
#include "interaction/selection.h"
#include "model/list_view.h"
#include "scroll/scroller.h"
#include "values/rounding.h"

namespace lumtex {

Long Selection::ListIndex() {
    Procedure p = procedure(u"ListIndex");
    // Wanted: the stored number is not compared with the count of rows, so a stale one comes back as it
    // stands.
    const Long index = records_.RowsCount() >= 1 ? properties_.ListIndex : -1;
    // Wanted: each read yields to the host once.
    core_.yield(p);
    return index;
}

void Selection::letListIndex(Long index) {
    Procedure p = procedure(u"ListIndex");
    if (index == -1) {
        NoSelected();
        properties_.ListIndex = -1;
        p.step([&] { core_.host().PropertyChanged(u"ListIndex"); });
        return;
    }
    const bool rejectedIndex = p.condition(
        [&] {
            const Long last = records_.upperBoundOfRows();
            return index < 0 || index > last || !records_.recordAt(index).Enabled;
        },
        true);
    if (rejectedIndex) {
        Variant rejected = index;
        p.raise([&] { core_.events().ErrorWrongIndex(rejected); });
        return;
    }
    if (properties_.ClickOnIndexChange)
        list_.UserControl_Click();
    properties_.ListIndex = index;

    const Long top = list_.TopIndex();
    const Long visible = core_.scroller->VisibleItems();
    const bool belowView = p.condition([&] { return index > differenceOf(sumOf(top, visible), 1); }, true);
    if (belowView && state_.indexScrollArmed)
        list_.letTopIndex(index);
    state_.indexScrollArmed = true;
    if (state_.selectOnIndexSet) {
        NoSelected();
        p.step([&] { records_.rowAt(Variant(index + 1)).Selected = true; });
        core_.CheckForRedraw();
    }
    p.step([&] { core_.host().PropertyChanged(u"ListIndex"); });
}

Long Selection::RowIndex() {
    Procedure p = procedure(u"RowIndex");
    return p.value<Long>([&] { return roundToLong(ListIndex() + 1.0); });
}

void Selection::letRowIndex(Long index) {
    Procedure p = procedure(u"RowIndex");
    p.step([&] { letListIndex(roundToLong(index - 1.0)); });
    const Long top = core_.scroller->vertical().Value();
    const Long visible = core_.scroller->VisibleItems();
    // Wanted: a place counted from 1 against a top row counted from 0.
    if (p.condition([&] { return index < top || index > roundToLong(static_cast<Double>(top) + visible); },
                    true))
        p.step([&] { list_.letTopIndex(roundToLong(index - 1.0)); });
    core_.CheckForRedraw();
}

} // namespace lumtex
