/// \file
/// A look as a list of strokes between named edges, and the painter that walks it.
#pragma once

#include "drawing/palette.h"
#include "platform/surface.h"

#include <span>

namespace lumtex::drawing {

enum class Shape : Byte { line, fill, pixel };

/// The edges of a header cell that strokes hang on.
enum class Edge : Byte {
    left,  ///< the cell's left pixel column
    right, ///< just past its last one
    top,   ///< its first pixel row
    foot,  ///< its last pixel row
    bar,   ///< first row of the hover bar, two above the foot
};

struct Place {
    Edge edge;
    Integer offset = 0; ///< pixels
};

struct Stroke {
    Shape shape;
    Place x1;
    Place y1;
    Place x2; ///< unused by a pixel
    Place y2; ///< unused by a pixel
    ColorRole role;
};

struct StrokeFrame {
    Single left;
    Single right;
    Single top;
    Single foot;

    Single at(Place place) const;
};

/// Paints `strokes` in their order, each in the colour that its role has then.
void paintStrokes(Surface& surface,
                  std::span<const Stroke> strokes,
                  const StrokeFrame& frame,
                  const Properties& properties);

} // namespace lumtex::drawing
