/// \file
/// Cuts a copy of part of a picture to what the picture holds.
#pragma once

#include "values/bitmap.h"
#include "values/geometry.h"

namespace lumtex {

/// Both rectangles leave out their right and lower edges; both are empty if nothing is to be painted.
struct PicturePart {
    Rect source; ///< pixels of the picture, all inside it
    Rect target; ///< pixels of the surface
    bool isEmpty() const { return source.Left >= source.Right || source.Top >= source.Bottom; }
};

/// The copy of `part` pixels of the picture, from `from` on, to `size` pixels at `at`. What lies outside the
/// picture is cut off on both sides of the copy. Throws RuntimeError 6 if a coordinate does not fit.
PicturePart picturePart(const Bitmap& picture, Point at, Point size, Point from, Point part);

} // namespace lumtex
