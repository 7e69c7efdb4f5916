#include "adapters/pictures/picture_image.h"

#include "adapters/pictures/pixbuf.h"
#include "values/image_check.h"
#include "values/runtime_error.h"

#include <algorithm>
#include <array>

namespace lumtex::pictures {

namespace {

struct Format {
    ImageFormat name;
    const char* loader;
    PictureKind kind;
    int coats; ///< how often the loader goes over each line: an icon has a mask
};

constexpr std::array<Format, 3> formats{{
    {ImageFormat::bitmap, "bmp", PictureKind::bitmap, 1},
    {ImageFormat::icon, "ico", PictureKind::icon, 2},
    {ImageFormat::cursor, "ico", PictureKind::icon, 2},
}};

const Format& formatOf(std::span<const Byte> image) {
    const ImageFormat name = checkImage(image);
    const auto* const found = std::find_if(
        formats.begin(), formats.end(), [&](const Format& format) { return format.name == name; });
    if (found == formats.end())
        throw RuntimeError(ErrorNumber::invalidPicture);
    return *found;
}

/// What the loader tells while it reads.
struct Reading {
    std::uint64_t mostPixels;
    std::int64_t lines = 0; ///< gone over so far, each as often as that happened
};

/// Before the loader asks for the memory of its pixels. A size of nothing makes it give up.
void refuseHugePicture(GdkPixbufLoader* loader, gint width, gint height, gpointer reading) {
    const std::uint64_t pixels =
        static_cast<std::uint64_t>(std::max(width, 0)) * static_cast<std::uint64_t>(std::max(height, 0));
    if (pixels > static_cast<const Reading*>(reading)->mostPixels)
        gdk_pixbuf_loader_set_size(loader, 0, 0);
}

void countLines(
    GdkPixbufLoader* /*loader*/, gint /*x*/, gint /*y*/, gint /*w*/, gint height, gpointer reading) {
    static_cast<Reading*>(reading)->lines += height;
}

} // namespace

PictureRef pictureOfImage(std::span<const Byte> image) {
    const Format& format = formatOf(image);
    const LoaderHandle loader(gdk_pixbuf_loader_new_with_type(format.loader, nullptr));
    if (!loader)
        throw RuntimeError(ErrorNumber::invalidPicture);
    Reading reading{.mostPixels = std::uint64_t{image.size()} * mostPixelsToAByte};
    g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(refuseHugePicture), &reading);
    g_signal_connect(loader.get(), "area-updated", G_CALLBACK(countLines), &reading);
    const bool written = gdk_pixbuf_loader_write(loader.get(), image.data(), image.size(), nullptr) != FALSE;
    // A loader must be closed, whatever became of the writing.
    const bool closed = gdk_pixbuf_loader_close(loader.get(), nullptr) != FALSE;
    const GdkPixbuf* pixbuf = gdk_pixbuf_loader_get_pixbuf(loader.get());
    if (!written || !closed || pixbuf == nullptr)
        throw RuntimeError(ErrorNumber::invalidPicture);
    // The library takes a cut image for a whole one, with pixels from nowhere.
    if (reading.lines < std::int64_t{format.coats} * gdk_pixbuf_get_height(pixbuf))
        throw RuntimeError(ErrorNumber::invalidPicture);
    return std::make_shared<BitmapPicture>(bitmapOf(pixbuf), format.kind);
}

} // namespace lumtex::pictures
