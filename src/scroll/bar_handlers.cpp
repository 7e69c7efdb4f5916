/// What a moved bar does to the list.
#include "model/list_view.h"

namespace lumtex {

// A paint that begins inside the yield sees the flag and gives up; the one after it paints the latest
// position. Wanted: a flag, not a counter, so that a nested change clears it for the outer one too.

void lmListView::VS_Change() {
    Procedure p = procedure(u"VS_Change");
    scroll_.scrollPending = true;
    yield(p);
    scroll_.scrollPending = false;
    Redraw();
}

void lmListView::VS_Scroll() {
    Procedure p = procedure(u"VS_Scroll");
    VS_Change();
    p.raise([&] { events_->Scroll(); });
}

void lmListView::HS_Change() {
    Procedure p = procedure(u"HS_Change");
    scroll_.scrollPending = true;
    yield(p);
    scroll_.scrollPending = false;
    Redraw();
}

// Wanted: scrolling sideways raises no event.
void lmListView::HS_Scroll() {
    HS_Change();
}

} // namespace lumtex
