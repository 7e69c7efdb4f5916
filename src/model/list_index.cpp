/// The current row.
#include "model/list_view.h"

namespace lumtex {

Long lmListView::ListIndex() {
    // Wanted: the stored number is not compared with the count of rows, so a stale one comes back as it
    // stands.
    const Long index = RowsCount() >= 1 ? properties_.ListIndex : -1;
    // Wanted: each read yields to the host once.
    runtime().DoEvents();
    return index;
}

void lmListView::letListIndex(Long index) {
    Procedure p = procedure(u"ListIndex");
    if (index == -1) {
        NoSelected();
        properties_.ListIndex = -1;
        p.step([&] { host_.PropertyChanged(u"ListIndex"); });
        return;
    }
    if (index < 0 || static_cast<std::size_t>(index) >= rows_.size() ||
        !rows_[static_cast<std::size_t>(index)].Enabled) {
        Variant rejected = index;
        p.step([&] { events_.ErrorWrongIndex(rejected); });
        return;
    }
    if (properties_.ClickOnIndexChange)
        UserControl_Click();
    properties_.ListIndex = index;

    const Long top = TopIndex();
    const Long visible = VisibleItems();
    if (index > top + visible - 1 && selection_.indexScrollArmed)
        letTopIndex(index);
    selection_.indexScrollArmed = true;
    if (selection_.selectOnIndexSet) {
        NoSelected();
        p.step([&] { rowAt(Variant(index + 1)).Selected = true; });
        CheckForRedraw();
    }
    p.step([&] { host_.PropertyChanged(u"ListIndex"); });
}

} // namespace lumtex
