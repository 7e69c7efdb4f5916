/// \file
/// A picture's size in pixels.
#pragma once

#include "platform/surface.h"
#include "values/rounding.h"

namespace lumtex::drawing {

/// From the stored HIMETRIC units by the surface's resolution, rounded; the product's own drawings have their
/// own pixels.
inline Long GetPictureWidth(const Surface& surface, const Picture& picture) {
    return pictureSize(surface, picture).x;
}

inline Long GetPictureHeight(const Surface& surface, const Picture& picture) {
    return pictureSize(surface, picture).y;
}

} // namespace lumtex::drawing
