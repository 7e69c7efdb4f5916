#include "adapters/pictures/pixbuf.h"

namespace lumtex {

namespace {

constexpr unsigned premultiplied(unsigned channel, unsigned alpha) {
    return (channel * alpha + 127) / 255;
}

} // namespace

Bitmap bitmapOf(const GdkPixbuf* pixbuf) {
    Bitmap bitmap(gdk_pixbuf_get_width(pixbuf), gdk_pixbuf_get_height(pixbuf));
    const int channels = gdk_pixbuf_get_n_channels(pixbuf);
    const int stride = gdk_pixbuf_get_rowstride(pixbuf);
    const guint8* bytes = gdk_pixbuf_read_pixels(pixbuf);
    for (Long y = 0; y < bitmap.height; ++y) {
        for (Long x = 0; x < bitmap.width; ++x) {
            const guint8* pixel =
                bytes + static_cast<std::ptrdiff_t>(y) * stride + static_cast<std::ptrdiff_t>(x) * channels;
            const unsigned alpha = channels == 4 ? pixel[3] : 255U;
            bitmap.at(x, y) = (alpha << 24U) | (premultiplied(pixel[0], alpha) << 16U) |
                              (premultiplied(pixel[1], alpha) << 8U) | premultiplied(pixel[2], alpha);
        }
    }
    return bitmap;
}

} // namespace lumtex
