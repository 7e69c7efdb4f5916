/// \file
/// What a paint pass leaves behind for the hit tests and for the next pass.
#pragma once

#include "values/geometry.h"
#include "values/types.h"

namespace lumtex {

struct PaintState {
    bool paintBusy = false;  ///< a pass runs, or painting is held off
    Long firstColumn = 0;    ///< 0-based; the first column painted
    Single firstColumnX = 0; ///< pixels; its left edge on the surface
    Single columnsRight = 0; ///< pixels; right edge of the last column
    Rect textRect;           ///< handed to `drawText`; shared by header and cells

    String cellText; ///< room for the text of a cell, kept so that painting allocates nothing
};

} // namespace lumtex
