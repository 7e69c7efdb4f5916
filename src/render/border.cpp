/// The frame, and the selection colour that goes with it.
#include "drawing/palette.h"
#include "guards/failure_of.h"
#include "render/painting.h"

namespace lumtex {

OLE_COLOR Painting::aktValueColor() const {
    return drawing::colorOf(drawing::ColorRole::selection, properties_);
}

void Painting::DrawBorder() {
    const OLE_COLOR color = drawing::colorOf(drawing::ColorRole::border, properties_);
    Surface& surface = window_.surface();
    ignoringErrors([&] {
        surface.box(0,
                    0,
                    static_cast<Single>(surface.scaleWidth()) - 1,
                    static_cast<Single>(surface.scaleHeight()) - 1,
                    color);
    });
}

} // namespace lumtex
