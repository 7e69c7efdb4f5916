#include "platform/surface.h"

#include "values/pixels.h"
#include "values/rounding.h"

namespace lumtex {

namespace {

constexpr Double twipsPerInch = 1440;

Double unitsPerInch(ScaleUnit unit, Double pixelsPerInch) {
    switch (unit) {
    case twips:
        return twipsPerInch;
    case himetric:
        return himetricPerInch;
    case pixels:
        break;
    }
    return pixelsPerInch;
}

Single scale(Double value, ScaleUnit from, ScaleUnit to, Double pixelsPerInch) {
    return static_cast<Single>(value * unitsPerInch(to, pixelsPerInch) / unitsPerInch(from, pixelsPerInch));
}

} // namespace

Single scaleX(const Surface& surface, Double value, ScaleUnit from, ScaleUnit to) {
    return scale(value, from, to, surface.pixelsPerInchX());
}

Single scaleY(const Surface& surface, Double value, ScaleUnit from, ScaleUnit to) {
    return scale(value, from, to, surface.pixelsPerInchY());
}

Point pictureSize(const Surface& surface, const Picture& picture) {
    if (picture.isPixelArt())
        return {picture.bitmap().width, picture.bitmap().height};
    return {roundToLong(scaleX(surface, picture.Width(), himetric, pixels)),
            roundToLong(scaleY(surface, picture.Height(), himetric, pixels))};
}

} // namespace lumtex
