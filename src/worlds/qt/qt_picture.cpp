#include "worlds/qt/qt_picture.h"

#include <cstring>

namespace lumtex::qt {

QImage imageOf(const Bitmap& bitmap) {
    QImage image(bitmap.width, bitmap.height, QImage::Format_ARGB32_Premultiplied);
    const std::size_t rowBytes = static_cast<std::size_t>(bitmap.width) * sizeof(std::uint32_t);
    for (Long y = 0; y < image.height(); ++y)
        std::memcpy(image.scanLine(y),
                    bitmap.pixels.data() +
                        static_cast<std::size_t>(y) * static_cast<std::size_t>(bitmap.width),
                    rowBytes);
    return image;
}

Bitmap bitmapOf(const QImage& image) {
    const QImage plain = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    Bitmap bitmap(plain.width(), plain.height());
    const std::size_t rowBytes = static_cast<std::size_t>(bitmap.width) * sizeof(std::uint32_t);
    for (Long y = 0; y < bitmap.height; ++y)
        std::memcpy(bitmap.pixels.data() +
                        static_cast<std::size_t>(y) * static_cast<std::size_t>(bitmap.width),
                    plain.constScanLine(y),
                    rowBytes);
    return bitmap;
}

} // namespace lumtex::qt
