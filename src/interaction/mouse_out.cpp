/// Another way to notice that the mouse has left, by holding the capture.
#include "model/list_view.h"

namespace lumtex {

// Wanted: nothing calls it.
void lmListView::MouseOut(Single X, Single Y) {
    const Surface& surface = window_->surface();
    if (X < 0 || Y < 0 || X > static_cast<Single>(surface.scaleWidth()) ||
        Y > static_cast<Single>(surface.scaleHeight())) {
        window_->releaseCapture();
        mouse_.mouseInside = false;
    } else if (!window_->underPointer()) {
        window_->releaseCapture();
        mouse_.mouseInside = false;
        window_->letMousePointer(pointerDefault);
    } else {
        window_->setCapture();
        if (!mouse_.mouseInside)
            window_->letMousePointer(pointerDefault);
        mouse_.mouseInside = true;
    }
}

} // namespace lumtex
