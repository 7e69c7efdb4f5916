#include "values/references/picture.h"

#include "values/pixels.h"
#include "values/rounding.h"

#include <algorithm>

namespace lumtex {

namespace {

constexpr Double pixelsPerInch = 96;

Long toHimetric(Long pixels) {
    return roundToLong(pixels * himetricPerInch / pixelsPerInch);
}

} // namespace

PictureKind Picture::kindOf(const Bitmap& bitmap) {
    constexpr std::uint32_t opaque = 0xFF;
    const bool isOpaque = std::all_of(bitmap.pixels.begin(), bitmap.pixels.end(), [](std::uint32_t pixel) {
        return pixel >> 24U == opaque;
    });
    return isOpaque ? PictureKind::bitmap : PictureKind::icon;
}

BitmapPicture::BitmapPicture(Bitmap bitmap, PictureKind kind)
    : bitmap_(std::move(bitmap)), kind_(kind == PictureKind::icon ? kind : kindOf(bitmap_)) {}

Long BitmapPicture::Width() const {
    return toHimetric(bitmap_.width);
}
Long BitmapPicture::Height() const {
    return toHimetric(bitmap_.height);
}

Long PixelArt::Width() const {
    return toHimetric(bitmap_.width);
}
Long PixelArt::Height() const {
    return toHimetric(bitmap_.height);
}

} // namespace lumtex
