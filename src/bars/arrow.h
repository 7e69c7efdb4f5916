/// \file
/// In what the four arrow buttons differ.
#pragma once

#include "platform/surface.h"

#include <span>

namespace lumtex::bars {

enum class Arrow : Byte { up, down, left, right };

/// Colours of a button's custom style.
struct ArrowColors {
    OLE_COLOR Arrow = 0;
    OLE_COLOR ArrowDown = 0;
    OLE_COLOR ArrowHover = 0;
    OLE_COLOR Button = 0;
    OLE_COLOR ButtonDown = 0;
    OLE_COLOR ButtonHover = 0;
};

/// A line from the first point to the second, or a pixel if both are the same. Pixels of the button.
struct ArrowStroke {
    Single x1;
    Single y1;
    Single x2;
    Single y2;

    constexpr bool isPixel() const { return x1 == x2 && y1 == y2; }
};

struct ArrowTraits {
    Arrow arrow;
    StringView moduleName;                ///< in error reports
    std::span<const ArrowStroke> strokes; ///< the chevron of the custom style, in painting order
};

const ArrowTraits& traitsOf(Arrow arrow);

/// Draws the chevron in the surface's ForeColor.
void DrawArrow(Surface& surface, const ArrowTraits& traits);

} // namespace lumtex::bars
