/// \file
/// Knowing that the pointer is over a small control, by holding the mouse while it is.
#pragma once

#include "platform/window.h"

namespace lumtex::bars {

/// What a thumb and an arrow button know of pointer and press.
struct Hover {
    bool over = false; ///< the pointer was inside at the last look
    bool down = false; ///< between a press and its release

    /// Decides from a position in pixels of the control whether the pointer is inside; the right and lower
    /// bounds still count. From the entry on the mouse is held, so that the move out of the control arrives
    /// here too; during a press it is the platform's, and is neither taken nor given back.
    void MouseOut(Window& Obj, Single X, Single Y);
};

} // namespace lumtex::bars
