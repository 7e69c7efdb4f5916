/// Laying pictures and glyphs over what is there.
#include "raster/canvas.h"
#include "values/picture_scale.h"

#include <algorithm>
#include <array>
#include <cstring>

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

/// The bytes of four pixels, and as many numbers with room for a product.
using Bytes [[gnu::vector_size(16)]] = Byte;
using Numbers [[gnu::vector_size(32)]] = std::uint16_t;

/// Four values, each of them in four bytes in a row.
Bytes eachFourTimes(const Byte* values) {
    using Words [[gnu::vector_size(16)]] = std::uint16_t;
    using Longs [[gnu::vector_size(16)]] = std::uint32_t;
    std::uint32_t four = 0;
    std::memcpy(&four, values, sizeof four);
    const auto once = Bytes(Longs{four});
    const auto twice =
        Words(__builtin_shufflevector(once, once, 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23));
    return Bytes(__builtin_shufflevector(twice, twice, 0, 8, 1, 9, 2, 10, 3, 11));
}

/// As `mixed`, of four pixels; `color` is one pixel four times. Bare and covered pixels go the same way,
/// since nobody foresees which of a letter's are which.
void mixFour(Pixel* pixels, Bytes color, const Byte* coverage) {
    Bytes under;
    std::memcpy(&under, pixels, sizeof under);
    const Numbers cover = __builtin_convertvector(eachFourTimes(coverage), Numbers);
    const Numbers sum = __builtin_convertvector(under, Numbers) * (255 - cover) +
                        __builtin_convertvector(color, Numbers) * cover + 128;
    const Bytes mixture = __builtin_convertvector((sum + (sum >> 8)) >> 8, Bytes);
    std::memcpy(pixels, &mixture, sizeof mixture);
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
    canvas.note(visible);
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

void blendMask(const Canvas& canvas, const Rect& clip, Point at, const Mask& mask, Pixel color) {
    const std::int64_t right = std::int64_t{at.x} + mask.width;
    const std::int64_t bottom = std::int64_t{at.y} + mask.height;
    const bool isWhole =
        at.x >= clip.Left && at.y >= clip.Top && right <= clip.Right && bottom <= clip.Bottom;
    // Pixels beside the mask are blended with nothing, which leaves them as they are.
    if (isWhole && std::int64_t{at.x} + mask.stride <= canvas.width) {
        Bytes colors;
        const std::array<Pixel, Mask::step> four{color, color, color, color};
        std::memcpy(&colors, four.data(), sizeof colors);
        const Byte* coverage = mask.coverage.data();
        canvas.note({at.x, at.y, static_cast<Long>(right), static_cast<Long>(bottom)});
        const Long stride = mask.stride;
        for (Long y = at.y; y < bottom; ++y) {
            Pixel* row = canvas.row(y) + at.x;
            for (Long x = 0; x < stride; x += Mask::step, coverage += Mask::step)
                mixFour(row + x, colors, coverage);
        }
        return;
    }
    const Rect visible =
        intersection(clip, {at.x, at.y, static_cast<Long>(right), static_cast<Long>(bottom)});
    canvas.note(visible);
    for (Long y = visible.Top; y < visible.Bottom; ++y) {
        const Byte* coverage = mask.row(y - at.y) + (visible.Left - at.x);
        Pixel* row = canvas.row(y);
        for (Long x = visible.Left; x < visible.Right; ++x, ++coverage)
            row[x] = mixed(row[x], color, *coverage);
    }
}

} // namespace lumtex::raster
