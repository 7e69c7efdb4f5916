#include "platform/picture.h"

#include "platform/rounding.h"

namespace lumtex {

namespace {

constexpr Double himetricPerInch = 2540;
constexpr Double pixelsPerInch = 96;

Long toHimetric(Long pixels) {
    return roundToLong(pixels * himetricPerInch / pixelsPerInch);
}

} // namespace

BitmapPicture::BitmapPicture(Bitmap bitmap) : bitmap_(std::move(bitmap)) {}

Long BitmapPicture::Width() const {
    return toHimetric(bitmap_.width);
}
Long BitmapPicture::Height() const {
    return toHimetric(bitmap_.height);
}

} // namespace lumtex
