/// Laying pictures and glyphs over what is there.
#include "raster/canvas.h"
#include "values/picture_scale.h"

#include <algorithm>

namespace lumtex::raster {

namespace {

constexpr Pixel opaque = 0xFF000000U;

/// x / 255, rounded, for products of two bytes in both halves of `pair`.
constexpr std::uint32_t dividePair(std::uint32_t pair) {
    pair += 0x00800080U;
    return ((pair + ((pair >> 8U) & 0x00FF00FFU)) >> 8U) & 0x00FF00FFU;
}

/// `under` dimmed to the part of 255 that `over` lets through, plus `over`, which is premultiplied.
constexpr Pixel blended(Pixel under, std::uint32_t over) {
    const std::uint32_t through = 255U - (over >> 24U);
    const std::uint32_t redBlue = dividePair((under & 0x00FF00FFU) * through);
    const std::uint32_t green = dividePair(((under >> 8U) & 0x000000FFU) * through);
    return opaque | ((redBlue | (green << 8U)) + (over & 0x00FFFFFFU));
}

constexpr Pixel mixed(Pixel under, Pixel color, std::uint32_t coverage) {
    const std::uint32_t rest = 255U - coverage;
    const std::uint32_t redBlue = dividePair((under & 0x00FF00FFU) * rest + (color & 0x00FF00FFU) * coverage);
    const std::uint32_t green =
        dividePair(((under >> 8U) & 0xFFU) * rest + ((color >> 8U) & 0xFFU) * coverage);
    return opaque | redBlue | (green << 8U);
}

} // namespace

void blendPicture(
    const Canvas& canvas, const Rect& clip, const Bitmap& source, const Rect& part, const Rect& target) {
    const std::int64_t targetWidth = std::int64_t{target.Right} - target.Left;
    const std::int64_t targetHeight = std::int64_t{target.Bottom} - target.Top;
    const std::int64_t partWidth = std::int64_t{part.Right} - part.Left;
    const std::int64_t partHeight = std::int64_t{part.Bottom} - part.Top;
    if (targetWidth <= 0 || targetHeight <= 0 || partWidth <= 0 || partHeight <= 0)
        return;
    const Rect visible = intersection(target, intersection(clip, canvas.bounds()));
    for (Long y = visible.Top; y < visible.Bottom; ++y) {
        const PixelSpan rows = sourceSpan(std::int64_t{y} - target.Top, targetHeight, part.Top, partHeight);
        Pixel* row = canvas.row(y);
        for (Long x = visible.Left; x < visible.Right; ++x) {
            const PixelSpan columns =
                sourceSpan(std::int64_t{x} - target.Left, targetWidth, part.Left, partWidth);
            const std::uint32_t pixel = averagePixel(source, columns, rows);
            if (pixel >= opaque)
                row[x] = pixel;
            else if (pixel != 0)
                row[x] = blended(row[x], pixel);
        }
    }
}

void blendMask(const Canvas& canvas,
               const Rect& clip,
               Point at,
               std::span<const Byte> mask,
               Long maskWidth,
               Pixel color) {
    if (maskWidth <= 0)
        return;
    const Long maskHeight = static_cast<Long>(mask.size()) / maskWidth;
    const Rect visible = intersection(clip, {at.x, at.y, at.x + maskWidth, at.y + maskHeight});
    for (Long y = visible.Top; y < visible.Bottom; ++y) {
        const Byte* coverage = mask.data() +
                               static_cast<std::size_t>(y - at.y) * static_cast<std::size_t>(maskWidth) +
                               (visible.Left - at.x);
        Pixel* row = canvas.row(y);
        for (Long x = visible.Left; x < visible.Right; ++x, ++coverage) {
            if (*coverage == 255)
                row[x] = color;
            else if (*coverage != 0)
                row[x] = mixed(row[x], color, *coverage);
        }
    }
}

} // namespace lumtex::raster
