/// The frame, and the selection colour that goes with it.
#include "drawing/palette.h"
#include "model/list_view.h"

namespace lumtex {

OLE_COLOR lmListView::aktValueColor() const {
    return colorOf(ColorRole::selection, properties_);
}

void lmListView::DrawBorder() {
    const OLE_COLOR color = colorOf(ColorRole::border, properties_);
    Surface& surface = window_->surface();
    ignoringErrors([&] {
        surface.box(0,
                    0,
                    static_cast<Single>(surface.scaleWidth()) - 1,
                    static_cast<Single>(surface.scaleHeight()) - 1,
                    color);
    });
}

} // namespace lumtex
