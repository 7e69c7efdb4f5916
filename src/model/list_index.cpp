/// The current row.
#include "model/list_view.h"
#include "values/rounding.h"

namespace lumtex {

Long lmListView::ListIndex() {
    Procedure p = procedure(u"ListIndex");
    // Wanted: the stored number is not compared with the count of rows, so a stale one comes back as it
    // stands.
    const Long index = RowsCount() >= 1 ? properties_.ListIndex : -1;
    // Wanted: each read yields to the host once.
    yield(p);
    return index;
}

void lmListView::letListIndex(Long index) {
    Procedure p = procedure(u"ListIndex");
    if (index == -1) {
        NoSelected();
        properties_.ListIndex = -1;
        p.step([&] { host_->PropertyChanged(u"ListIndex"); });
        return;
    }
    const bool rejectedIndex = p.condition(
        [&] {
            const Long last = upperBoundOfRows();
            return index < 0 || index > last || !recordAt(index).Enabled;
        },
        true);
    if (rejectedIndex) {
        Variant rejected = index;
        p.raise([&] { events_->ErrorWrongIndex(rejected); });
        return;
    }
    if (properties_.ClickOnIndexChange)
        UserControl_Click();
    properties_.ListIndex = index;

    const Long top = TopIndex();
    const Long visible = VisibleItems();
    const bool belowView = p.condition([&] { return index > differenceOf(sumOf(top, visible), 1); }, true);
    if (belowView && selection_.indexScrollArmed)
        letTopIndex(index);
    selection_.indexScrollArmed = true;
    if (selection_.selectOnIndexSet) {
        NoSelected();
        p.step([&] { rowAt(Variant(index + 1)).Selected = true; });
        CheckForRedraw();
    }
    p.step([&] { host_->PropertyChanged(u"ListIndex"); });
}

Long lmListView::RowIndex() {
    Procedure p = procedure(u"RowIndex");
    return p.value<Long>([&] { return roundToLong(ListIndex() + 1.0); });
}

void lmListView::letRowIndex(Long index) {
    Procedure p = procedure(u"RowIndex");
    p.step([&] { letListIndex(roundToLong(index - 1.0)); });
    const Long top = VS->Value();
    const Long visible = VisibleItems();
    // Wanted: a place counted from 1 against a top row counted from 0.
    if (p.condition([&] { return index < top || index > roundToLong(static_cast<Double>(top) + visible); },
                    true))
        p.step([&] { letTopIndex(roundToLong(index - 1.0)); });
    CheckForRedraw();
}

} // namespace lumtex
