/// \file
/// A linear run between two colours.
#pragma once

#include "platform/surface.h"

namespace lumtex {

enum GradientDirection : Long {
    leftToRight = 0,
    bottomToTop = 1,
};

/// Paints `rect` from `colour1`, at the left or the bottom, to `colour2`. No system colours. Anything that
/// cannot be painted (no rectangle, no extent, another direction) paints nothing.
void DrawGradient(Surface& surface, const Rect* rect, OLE_COLOR colour1, OLE_COLOR colour2, Long direction);

} // namespace lumtex
