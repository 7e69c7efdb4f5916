/// \file
/// Pixels that the primitives of the software surface paint on.
#pragma once

#include "values/bitmap.h"
#include "values/geometry.h"

#include <span>

namespace lumtex::raster {

/// An opaque pixel, 0xFFRRGGBB.
using Pixel = std::uint32_t;

/// A borrowed block of pixels. Every primitive clips to it; coordinates may lie anywhere in 32 bits.
struct Canvas {
    Pixel* pixels;
    Long width;
    Long height;

    Pixel* row(Long y) const {
        return pixels + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
    }
    Rect bounds() const { return {0, 0, width, height}; }
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

/// `mask` holds coverage, one byte a pixel, rows of `maskWidth`; only what lies in `clip` is touched.
void blendMask(const Canvas& canvas,
               const Rect& clip,
               Point at,
               std::span<const Byte> mask,
               Long maskWidth,
               Pixel color);

} // namespace lumtex::raster
