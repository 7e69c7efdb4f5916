#include "adapters/pictures/image_file.h"

#include "adapters/pictures/pixbuf.h"
#include "values/runtime_error.h"

#include <memory>

namespace lumtex::pictures {

PictureRef loadPicture(const std::filesystem::path& file) {
    std::error_code failure;
    if (!std::filesystem::is_regular_file(file, failure))
        throw RuntimeError(ErrorNumber::fileNotFound);
    GError* error = nullptr;
    const PixbufHandle pixbuf(gdk_pixbuf_new_from_file(file.c_str(), &error));
    const ErrorHandle reason(error);
    if (!pixbuf)
        throw RuntimeError(ErrorNumber::invalidPicture);
    return std::make_shared<BitmapPicture>(bitmapOf(pixbuf.get()));
}

PictureRef loadPicture(std::span<const Byte> bytes) {
    const LoaderHandle loader(gdk_pixbuf_loader_new());
    const bool written = gdk_pixbuf_loader_write(loader.get(), bytes.data(), bytes.size(), nullptr) != FALSE;
    // A loader must be closed, whatever became of the writing.
    const bool closed = gdk_pixbuf_loader_close(loader.get(), nullptr) != FALSE;
    const GdkPixbuf* pixbuf = gdk_pixbuf_loader_get_pixbuf(loader.get());
    if (!written || !closed || pixbuf == nullptr)
        throw RuntimeError(ErrorNumber::invalidPicture);
    return std::make_shared<BitmapPicture>(bitmapOf(pixbuf));
}

void savePng(const Bitmap& bitmap, const std::filesystem::path& file) {
    const PixbufHandle pixbuf(gdk_pixbuf_new(GDK_COLORSPACE_RGB, TRUE, 8, bitmap.width, bitmap.height));
    if (!pixbuf)
        throw RuntimeError(ErrorNumber::deviceError);
    const int stride = gdk_pixbuf_get_rowstride(pixbuf.get());
    guint8* bytes = gdk_pixbuf_get_pixels(pixbuf.get());
    for (Long y = 0; y < bitmap.height; ++y) {
        for (Long x = 0; x < bitmap.width; ++x) {
            const std::uint32_t source = bitmap.at(x, y);
            guint8* pixel =
                bytes + static_cast<std::ptrdiff_t>(y) * stride + static_cast<std::ptrdiff_t>(x) * 4;
            for (unsigned channel = 0; channel < 3; ++channel)
                pixel[channel] = straightChannel(source, channel);
            pixel[3] = static_cast<guint8>(source >> 24U);
        }
    }
    if (gdk_pixbuf_save(pixbuf.get(), file.c_str(), "png", nullptr, nullptr) == FALSE)
        throw RuntimeError(ErrorNumber::deviceError);
}

} // namespace lumtex::pictures
