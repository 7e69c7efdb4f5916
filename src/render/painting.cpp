#include "render/painting.h"

#include "render/paint_pass.h"

namespace lumtex {

Painting::Painting(ListViewCore& core) : ListPart(core), Picture1_(core.world().createSurface(1, 1)) {}

void Painting::Redraw() {
    if (core_.hasEnded())
        return;
    Procedure p = procedure(u"Redraw");
    if (core_.designMode())
        paintDesignView();
    else
        PaintPass(core_, state_, p).run();
}

void Painting::ClearListView() {
    Procedure p = procedure(u"ClearListView");
    p.step([&] { window_.surface().Cls(); });
    p.step([&] { window_.present(); });
}

} // namespace lumtex
