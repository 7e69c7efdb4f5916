/// \file
/// A picture's size in pixels.
#pragma once

#include "platform/rounding.h"
#include "platform/surface.h"

namespace lumtex {

/// From the stored HIMETRIC units by the surface's resolution, rounded.
inline Long GetPictureWidth(const Surface& surface, const Picture& picture) {
    return roundToLong(scaleX(surface, picture.Width(), himetric, pixels));
}

inline Long GetPictureHeight(const Surface& surface, const Picture& picture) {
    return roundToLong(scaleY(surface, picture.Height(), himetric, pixels));
}

} // namespace lumtex
