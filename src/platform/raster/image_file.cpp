#include "platform/raster/image_file.h"

#include "platform/runtime_error.h"

#include <memory>

#include <gdk-pixbuf/gdk-pixbuf.h>

namespace lumtex {

namespace {

struct Unref {
    void operator()(void* object) const { g_object_unref(object); }
};
struct FreeError {
    void operator()(GError* error) const { g_error_free(error); }
};
using PixbufHandle = std::unique_ptr<GdkPixbuf, Unref>;
using LoaderHandle = std::unique_ptr<GdkPixbufLoader, Unref>;
using ErrorHandle = std::unique_ptr<GError, FreeError>;

constexpr unsigned premultiplied(unsigned channel, unsigned alpha) {
    return (channel * alpha + 127) / 255;
}

PictureRef pictureOf(const GdkPixbuf* pixbuf) {
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
    return std::make_shared<BitmapPicture>(std::move(bitmap));
}

} // namespace

PictureRef loadPicture(const std::filesystem::path& file) {
    std::error_code failure;
    if (!std::filesystem::is_regular_file(file, failure))
        throw RuntimeError(fileNotFound);
    GError* error = nullptr;
    const PixbufHandle pixbuf(gdk_pixbuf_new_from_file(file.c_str(), &error));
    const ErrorHandle reason(error);
    if (!pixbuf)
        throw RuntimeError(invalidPicture);
    return pictureOf(pixbuf.get());
}

PictureRef loadPicture(std::span<const Byte> bytes) {
    const LoaderHandle loader(gdk_pixbuf_loader_new());
    const bool written = gdk_pixbuf_loader_write(loader.get(), bytes.data(), bytes.size(), nullptr) != FALSE;
    // A loader must be closed, whatever became of the writing.
    const bool closed = gdk_pixbuf_loader_close(loader.get(), nullptr) != FALSE;
    const GdkPixbuf* pixbuf = gdk_pixbuf_loader_get_pixbuf(loader.get());
    if (!written || !closed || pixbuf == nullptr)
        throw RuntimeError(invalidPicture);
    return pictureOf(pixbuf);
}

void savePng(const Bitmap& bitmap, const std::filesystem::path& file) {
    const PixbufHandle pixbuf(gdk_pixbuf_new(GDK_COLORSPACE_RGB, TRUE, 8, bitmap.width, bitmap.height));
    if (!pixbuf)
        throw RuntimeError(deviceError);
    const int stride = gdk_pixbuf_get_rowstride(pixbuf.get());
    guint8* bytes = gdk_pixbuf_get_pixels(pixbuf.get());
    for (Long y = 0; y < bitmap.height; ++y) {
        for (Long x = 0; x < bitmap.width; ++x) {
            const std::uint32_t source = bitmap.at(x, y);
            const unsigned alpha = source >> 24U;
            guint8* pixel =
                bytes + static_cast<std::ptrdiff_t>(y) * stride + static_cast<std::ptrdiff_t>(x) * 4;
            for (unsigned channel = 0; channel < 3; ++channel) {
                const unsigned value = (source >> (16 - 8 * channel)) & 0xFFU;
                pixel[channel] = static_cast<guint8>(alpha == 0 ? 0 : (value * 255 + alpha / 2) / alpha);
            }
            pixel[3] = static_cast<guint8>(alpha);
        }
    }
    if (gdk_pixbuf_save(pixbuf.get(), file.c_str(), "png", nullptr, nullptr) == FALSE)
        throw RuntimeError(deviceError);
}

} // namespace lumtex
