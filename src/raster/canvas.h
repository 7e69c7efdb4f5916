/// \file
/// Pixels that the primitives of the software surface paint on.
#pragma once

#include "raster/mask.h"
#include "raster/painted_parts.h"
#include "values/bitmap.h"
#include "values/geometry.h"

#include <span>

namespace lumtex::raster {

/// An opaque pixel, 0xFFRRGGBB.
using Pixel = std::uint32_t;

/// A borrowed block of pixels. Every primitive clips to it, and notes what it paints; coordinates may lie
/// anywhere in 32 bits.
struct Canvas {
    Pixel* pixels;
    Long width;
    Long height;
    PaintedParts* painted = nullptr; ///< null where nobody wants to know

    Pixel* row(Long y) const {
        return pixels + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
    }
    Rect bounds() const { return {0, 0, width, height}; }
    /// `area` lies in the canvas.
    void note(const Rect& area) const {
        if (painted != nullptr)
            painted->note(area);
    }
};

Rect intersection(const Rect& a, const Rect& b);

/// `area` with its right and lower edges left out.
void fillArea(const Canvas& canvas, const Rect& area, Pixel color);

/// From the first point up to but without the last one.
void drawLine(const Canvas& canvas, Point from, Point to, Pixel color);

/// The inside by alternate winding, right and lower edges left out.
void fillPolygon(const Canvas& canvas, std::span<const Point> points, Pixel color);

/// The part of `source` that `part` names, which must lie inside it, over `target`, blended. Enlarging
/// repeats the nearest pixel; reducing averages all pixels that fall into one. Only what lies in `clip` is
/// touched.
void blendPicture(
    const Canvas& canvas, const Rect& clip, const Bitmap& source, const Rect& part, const Rect& target);

/// The mask's upper left corner comes to `at`. Only what lies in `clip` changes, which lies in the canvas.
void blendMask(const Canvas& canvas, const Rect& clip, Point at, const Mask& mask, Pixel color);

} // namespace lumtex::raster
