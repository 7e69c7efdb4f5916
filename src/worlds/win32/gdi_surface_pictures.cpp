/// Pictures on the surface of Windows.
#include "values/picture_scale.h"
#include "values/pixels.h"
#include "worlds/win32/dib_info.h"
#include "worlds/win32/gdi_surface.h"

#include <algorithm>

namespace lumtex::win32 {

namespace {

constexpr std::uint32_t opaque = 0xFF000000U;

std::int64_t widthOf(const Rect& area) {
    return std::int64_t{area.Right} - area.Left;
}
std::int64_t heightOf(const Rect& area) {
    return std::int64_t{area.Bottom} - area.Top;
}

/// Puts what `visible` shows of `part`, stretched over `target`, into the upper left corner of `sheet`. Is
/// all of it opaque?
bool layOut(const Bitmap& source,
            const Rect& part,
            const Rect& target,
            const Rect& visible,
            const MemoryBitmap& sheet) {
    std::uint32_t inAll = opaque;
    for (Long y = visible.Top; y < visible.Bottom; ++y) {
        const PixelSpan rows =
            sourceSpan(std::int64_t{y} - target.Top, heightOf(target), part.Top, heightOf(part));
        std::uint32_t* row = sheet.row(y - visible.Top);
        for (Long x = visible.Left; x < visible.Right; ++x) {
            const PixelSpan columns =
                sourceSpan(std::int64_t{x} - target.Left, widthOf(target), part.Left, widthOf(part));
            const std::uint32_t pixel = averagePixel(source, columns, rows);
            inAll &= pixel;
            *row++ = pixel;
        }
    }
    return inAll >= opaque;
}

} // namespace

// Stretched here and not by the system, whose versions differ in which pixels a shrunken picture keeps.
void GdiSurface::blendPicture(const Bitmap& source, const Rect& part, const Rect& target) {
    if (widthOf(part) <= 0 || heightOf(part) <= 0)
        return;
    const Rect visible{std::max<Long>(target.Left, 0),
                       std::max<Long>(target.Top, 0),
                       std::min(target.Right, width_),
                       std::min(target.Bottom, height_)};
    if (visible.Left >= visible.Right || visible.Top >= visible.Bottom)
        return;
    const Long width = visible.Right - visible.Left;
    const Long height = visible.Bottom - visible.Top;
    if (!sheet_ || sheet_->width() < width || sheet_->height() < height) {
        const Long formerWidth = sheet_ ? sheet_->width() : 0;
        const Long formerHeight = sheet_ ? sheet_->height() : 0;
        sheet_ = std::make_unique<MemoryBitmap>(std::max(width, formerWidth), std::max(height, formerHeight));
    }
    GdiFlush();
    const HDC dc = memoryDc();
    if (layOut(source, part, target, visible, *sheet_)) {
        BitBlt(dc, visible.Left, visible.Top, width, height, sheet_->dc(), 0, 0, SRCCOPY);
    } else {
        constexpr BLENDFUNCTION byAlpha{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
        AlphaBlend(dc, visible.Left, visible.Top, width, height, sheet_->dc(), 0, 0, width, height, byAlpha);
    }
}

namespace {

/// `source` with no more columns and rows than the target has, in `bytes`: what the system leaves out when it
/// shrinks differs between its versions.
Dib24 shrunken(const Dib24& source, Long width, Long height, std::vector<Byte>& bytes) {
    const Dib24 smaller{std::min(source.width, width), std::min(source.height, height), {}};
    const auto strideOf = [](const Dib24& dib) { return dibStride(dib.width, 24); };
    bytes.assign(strideOf(smaller) * static_cast<std::size_t>(smaller.height), 0);
    for (Long y = 0; y < smaller.height; ++y) {
        // Rows are counted from the top and stored from below.
        const auto from =
            static_cast<std::size_t>(source.height - 1 - nearestSource(y, smaller.height, source.height));
        Byte* row = bytes.data() + strideOf(smaller) * static_cast<std::size_t>(smaller.height - 1 - y);
        for (Long x = 0; x < smaller.width; ++x) {
            const Byte* pixel = source.bytes.data() + strideOf(source) * from +
                                nearestSource(x, smaller.width, source.width) * 3;
            row = std::copy_n(pixel, 3, row);
        }
    }
    return {smaller.width, smaller.height, bytes};
}

} // namespace

void GdiSurface::stretchDIBits(Long x, Long y, Long width, Long height, const Dib24& source) {
    if (width <= 0 || height <= 0 || source.width <= 0 || source.height <= 0)
        return;
    const std::uint64_t stride = dibStride(source.width, 24);
    if (source.bytes.size() < stride * static_cast<std::size_t>(source.height))
        return;
    std::vector<Byte> room;
    const bool shrinks = width < source.width || height < source.height;
    const Dib24 shown = shrinks ? shrunken(source, width, height, room) : source;
    const BITMAPINFO info = dibInfo(shown.width, shown.height, 24);
    StretchDIBits(memoryDc(),
                  x,
                  y,
                  width,
                  height,
                  0,
                  0,
                  shown.width,
                  shown.height,
                  shown.bytes.data(),
                  &info,
                  DIB_RGB_COLORS,
                  SRCCOPY);
}

} // namespace lumtex::win32
