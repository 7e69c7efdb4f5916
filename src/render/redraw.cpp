/// The one routine that paints the control.
#include "render/paint_pass.h"

namespace lumtex {

void lmListView::Redraw() {
    if (life_.hasEnded())
        return;
    Procedure p = procedure(u"Redraw");
    if (designMode())
        paintDesignView();
    else
        PaintPass(*this, p).run();
}

void lmListView::ClearListView() {
    Procedure p = procedure(u"ClearListView");
    p.step([&] { window_->surface().Cls(); });
    p.step([&] { window_->present(); });
}

} // namespace lumtex
