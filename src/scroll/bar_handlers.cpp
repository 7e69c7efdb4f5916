/// What a moved bar does to the list.
#include "model/list_view.h"
#include "scroll/scroller.h"

namespace lumtex {

// A paint that begins inside the yield sees the flag and gives up; the one after it paints the latest
// position. Wanted: a flag, not a counter, so that a nested change clears it for the outer one too.

void Scroller::VS_Change() {
    Procedure p = procedure(u"VS_Change");
    state_.scrollPending = true;
    core_.yield(p);
    state_.scrollPending = false;
    list_.Redraw();
}

void Scroller::VS_Scroll() {
    Procedure p = procedure(u"VS_Scroll");
    VS_Change();
    p.raise([&] { core_.events().Scroll(); });
}

void Scroller::HS_Change() {
    Procedure p = procedure(u"HS_Change");
    state_.scrollPending = true;
    core_.yield(p);
    state_.scrollPending = false;
    list_.Redraw();
}

// Wanted: scrolling sideways raises no event.
void Scroller::HS_Scroll() {
    HS_Change();
}

} // namespace lumtex
