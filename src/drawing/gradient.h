/// \file
/// A linear run between two colours.
#pragma once

#include "platform/surface.h"

namespace lumtex::drawing {

enum class GradientDirection : Byte { leftToRight, bottomToTop };

/// Paints `rect` from `colour1`, at the left or the bottom, to `colour2`. No system colours. Anything that
/// cannot be painted (no rectangle, no extent, another direction) paints nothing.
void DrawGradient(
    Surface& surface, const Rect* rect, OLE_COLOR colour1, OLE_COLOR colour2, GradientDirection direction);

} // namespace lumtex::drawing
