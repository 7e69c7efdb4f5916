#include "platform/surface.h"

#include "values/picture_part.h"
#include "values/pixels.h"
#include "values/rounding.h"

#include <algorithm>

namespace lumtex {

namespace {

constexpr Double twipsPerInch = 1440;

Double unitsPerInch(Unit unit, Double pixelsPerInch) {
    switch (unit) {
    case Unit::twips:
        return twipsPerInch;
    case Unit::himetric:
        return himetricPerInch;
    case Unit::pixels:
        break;
    }
    return pixelsPerInch;
}

Single scale(Double value, Unit from, Unit to, Double pixelsPerInch) {
    return static_cast<Single>(value * unitsPerInch(to, pixelsPerInch) / unitsPerInch(from, pixelsPerInch));
}

Point rounded(Single x, Single y) {
    return {roundToLong(x), roundToLong(y)};
}

/// Just past a pixel, without leaving 32 bits.
constexpr Long past(Long coordinate) {
    return coordinate == 0x7FFFFFFF ? coordinate : coordinate + 1;
}

/// The pixels of a rectangle whose corners both count, in whatever order.
Rect inclusive(Point a, Point b) {
    const auto [left, right] = std::minmax(a.x, b.x);
    const auto [top, bottom] = std::minmax(a.y, b.y);
    return {left, top, past(right), past(bottom)};
}

} // namespace

void Surface::line(Single x1, Single y1, Single x2, Single y2, OLE_COLOR color) {
    drawLine(rounded(x1, y1), rounded(x2, y2), color);
}

void Surface::box(Single x1, Single y1, Single x2, Single y2, OLE_COLOR color) {
    const Point a = rounded(x1, y1);
    const Point b = rounded(x2, y2);
    for (const Long y : {std::min(a.y, b.y), std::max(a.y, b.y)})
        fillArea(inclusive({a.x, y}, {b.x, y}), color);
    for (const Long x : {std::min(a.x, b.x), std::max(a.x, b.x)})
        fillArea(inclusive({x, a.y}, {x, b.y}), color);
}

void Surface::fillBox(Single x1, Single y1, Single x2, Single y2, OLE_COLOR color) {
    fillArea(inclusive(rounded(x1, y1), rounded(x2, y2)), color);
}

void Surface::pset(Single x, Single y, OLE_COLOR color) {
    fillBox(x, y, x, y, color);
}

void Surface::paintPicture(const Picture& picture, Single x, Single y) {
    const Point size = pictureSize(*this, picture);
    paintPicture(picture, x, y, static_cast<Single>(size.x), static_cast<Single>(size.y));
}

void Surface::paintPicture(const Picture& picture, Single x, Single y, Single width, Single height) {
    const Bitmap& source = picture.bitmap();
    const Point at = rounded(x, y);
    const Point end{roundToLong(static_cast<Double>(at.x) + roundToLong(width)),
                    roundToLong(static_cast<Double>(at.y) + roundToLong(height))};
    blendPicture(source, {0, 0, source.width, source.height}, {at.x, at.y, end.x, end.y});
}

void Surface::paintPicture(const Picture& picture, const Area& target, const Area& part) {
    const Bitmap& source = picture.bitmap();
    const PicturePart copy = picturePart(source,
                                         rounded(target.x, target.y),
                                         rounded(target.width, target.height),
                                         rounded(part.x, part.y),
                                         rounded(part.width, part.height));
    blendPicture(source, copy.source, copy.target);
}

Single scaleX(const Surface& surface, Double value, Unit from, Unit to) {
    return scale(value, from, to, surface.pixelsPerInchX());
}

Single scaleY(const Surface& surface, Double value, Unit from, Unit to) {
    return scale(value, from, to, surface.pixelsPerInchY());
}

Point pictureSize(const Surface& surface, const Picture& picture) {
    if (picture.isPixelArt())
        return {picture.bitmap().width, picture.bitmap().height};
    return {roundToLong(scaleX(surface, picture.Width(), Unit::himetric, Unit::pixels)),
            roundToLong(scaleY(surface, picture.Height(), Unit::himetric, Unit::pixels))};
}

} // namespace lumtex
