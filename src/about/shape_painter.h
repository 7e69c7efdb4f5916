/// \file
/// Filling shapes with soft edges: what the pictures of the about box are made of.
#pragma once

#include "values/bitmap.h"

#include <span>

namespace lumtex::about {

/// Red, green and blue from 0 to 255.
struct Shade {
    float red = 0;
    float green = 0;
    float blue = 0;
};

/// The shade at `place` of the way from `from` (0) to `to` (1).
Shade between(const Shade& from, const Shade& to, float place);

/// A rectangle with round corners, in pixels.
struct RoundBox {
    float left;
    float top;
    float width;
    float height;
    float radius;
};

/// A line with round ends: straight if `quadrants` is 0, otherwise those quarters of the circle around
/// (`x1`, `y1`) with the radius `x2`, as bits: 1 right above, 2 left above, 4 left below, 8 right below the
/// centre. Units of a letter: y counts upwards from the base line.
struct PenStroke {
    float x1;
    float y1;
    float x2;
    float y2;
    unsigned quadrants = 0;
};

/// Where and how big the strokes of a letter lie on a picture, in pixels.
struct LetterFrame {
    float left;
    float baseLine;
    float scale;     ///< pixels per unit
    float halfWidth; ///< of the line
};

/// Lays `shade` over a pixel; `coverage` runs from 0 to 1. Outside the picture nothing happens.
void layOver(Bitmap& picture, Long x, Long y, const Shade& shade, float coverage);

/// From `top` at the upper edge to `bottom` at the lower one.
void fillBox(Bitmap& picture, const RoundBox& box, const Shade& top, const Shade& bottom, float opacity = 1);

/// A shadow that fades out over `blur` pixels beyond the box.
void shadow(Bitmap& picture, const RoundBox& box, float blur, float opacity);

void drawStrokes(Bitmap& picture,
                 std::span<const PenStroke> strokes,
                 const LetterFrame& frame,
                 const Shade& shade,
                 float opacity = 1);

} // namespace lumtex::about
