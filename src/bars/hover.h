/// \file
/// Knowing that the pointer is over a small control, by holding the mouse while it is.
#pragma once

#include "platform/window.h"

namespace lumtex {

/// What a thumb and an arrow button know of pointer and press.
struct Hover {
    bool over = false; ///< the pointer was inside at the last look
    bool down = false; ///< between a press and its release

    /// Decides from a position in pixels of the control whether the pointer is inside, where right and lower
    /// bound still count. The mouse is held from the entry on, which brings the move that tells of the
    /// leaving; during a press it is the platform's, and is neither taken nor given back.
    void MouseOut(Window& Obj, Single X, Single Y);
};

} // namespace lumtex
