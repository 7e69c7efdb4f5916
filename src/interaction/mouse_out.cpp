/// Another way to notice that the mouse has left, by holding the capture.
#include "interaction/mouse.h"

namespace lumtex {

// Wanted: nothing calls it.
void Mouse::MouseOut(Single X, Single Y) {
    const Surface& surface = window_.surface();
    if (X < 0 || Y < 0 || X > static_cast<Single>(surface.scaleWidth()) ||
        Y > static_cast<Single>(surface.scaleHeight())) {
        window_.releaseCapture();
        state_.mouseInside = false;
    } else if (!window_.underPointer()) {
        window_.releaseCapture();
        state_.mouseInside = false;
        window_.letMousePointer(CursorShape::standard);
    } else {
        window_.setCapture();
        if (!state_.mouseInside)
            window_.letMousePointer(CursorShape::standard);
        state_.mouseInside = true;
    }
}

} // namespace lumtex
