#include "bars/hover.h"

namespace lumtex::bars {

void Hover::MouseOut(Window& Obj, Single X, Single Y) {
    const Surface& surface = Obj.surface();
    const bool outside = X < 0 || Y < 0 || X > static_cast<Single>(surface.scaleWidth()) ||
                         Y > static_cast<Single>(surface.scaleHeight());
    if (!down) {
        if (outside)
            Obj.releaseCapture();
        else
            Obj.setCapture();
    }
    over = !outside;
}

} // namespace lumtex::bars
