#include "adapters/pictures/pixbuf.h"

#include "values/pixels.h"

#include <cstddef>

namespace lumtex::pictures {

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
            const std::uint32_t color = unsigned{pixel[0]} << 16U | unsigned{pixel[1]} << 8U | pixel[2];
            bitmap.at(x, y) = premultiplied(color, alpha);
        }
    }
    return bitmap;
}

} // namespace lumtex::pictures
