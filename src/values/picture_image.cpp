#include "values/picture_image.h"

#include "values/pixels.h"
#include "values/runtime_error.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace lumtex {

namespace {

constexpr std::uint64_t fileHeaderSize = 14;
constexpr std::uint64_t iconDirectorySize = 22; // with one entry
constexpr std::uint64_t infoHeaderSize = 40;
constexpr std::uint64_t alphaHeaderSize = 108;
constexpr Long largestIcon = 256; // pixels a side, as readers of icon files have it

using Image = std::vector<Byte>;

enum Compression : Byte { uncompressed = 0, bitFields = 3 };

void append(Image& image, std::uint64_t value, unsigned bytes) {
    for (unsigned i = 0; i < bytes; ++i)
        image.push_back(static_cast<Byte>(value >> (8 * i)));
}

/// All of the header but its own size.
void appendInfo(Image& image,
                const Bitmap& bitmap,
                Long lines,
                unsigned bits,
                Compression compression,
                std::uint64_t dataSize) {
    append(image, static_cast<std::uint64_t>(bitmap.width), 4);
    append(image, static_cast<std::uint64_t>(lines), 4);
    append(image, 1, 2); // planes
    append(image, bits, 2);
    append(image, compression, 4);
    append(image, dataSize, 4);
    for (int unused = 0; unused < 4; ++unused)
        append(image, 0, 4); // pixels per metre, and the palette that is not there
}

/// `lines` is the height, or twice that where a mask follows the pixels.
void appendInfoHeader(Image& image, const Bitmap& bitmap, Long lines, unsigned bits, std::uint64_t dataSize) {
    append(image, infoHeaderSize, 4);
    appendInfo(image, bitmap, lines, bits, uncompressed, dataSize);
}

/// The longer header, which says where in a pixel its alpha is.
void appendAlphaHeader(Image& image, const Bitmap& bitmap, std::uint64_t dataSize) {
    append(image, alphaHeaderSize, 4);
    appendInfo(image, bitmap, bitmap.height, 32, bitFields, dataSize);
    for (const std::uint32_t mask : {0xFF0000U, 0xFF00U, 0xFFU, 0xFF000000U})
        append(image, mask, 4);
    append(image, 0x73524742U, 4); // the usual colour space; what describes others stays 0
    image.resize(fileHeaderSize + alphaHeaderSize);
}

/// From the lowest line up, blue first; with alpha as the fourth byte of 32 bits.
void appendPixels(Image& image, const Bitmap& bitmap, unsigned bits) {
    const std::uint64_t size = dibStride(bitmap.width, bits);
    for (Long y = bitmap.height - 1; y >= 0; --y) {
        const std::size_t start = image.size();
        for (Long x = 0; x < bitmap.width; ++x) {
            const std::uint32_t pixel = bitmap.at(x, y);
            for (const unsigned channel : {2U, 1U, 0U})
                image.push_back(straightChannel(pixel, channel));
            if (bits == 32)
                image.push_back(static_cast<Byte>(pixel >> 24U));
        }
        image.resize(start + size);
    }
}

/// From the lowest line up.
void appendMask(Image& image, const Bitmap& bitmap) {
    const std::vector<Byte> rows = maskRows(bitmap, 32);
    const auto size = static_cast<std::ptrdiff_t>(dibStride(bitmap.width, 1));
    for (auto end = rows.end(); end != rows.begin(); end -= size)
        image.insert(image.end(), end - size, end);
}

void refuseSize(std::uint64_t size) {
    if (size > std::numeric_limits<Long>::max())
        throw RuntimeError(ErrorNumber::outOfMemory);
}

enum class Alpha : Byte { dropped, kept };

Image bitmapFile(const Bitmap& bitmap, Alpha alpha) {
    const unsigned bits = alpha == Alpha::kept ? 32 : 24;
    const std::uint64_t dataSize = dibStride(bitmap.width, bits) * static_cast<std::uint64_t>(bitmap.height);
    const std::uint64_t dataStart =
        fileHeaderSize + (alpha == Alpha::kept ? alphaHeaderSize : infoHeaderSize);
    refuseSize(dataStart + dataSize);
    Image image;
    image.reserve(dataStart + dataSize);
    append(image, 'B', 1);
    append(image, 'M', 1);
    append(image, dataStart + dataSize, 4);
    append(image, 0, 4); // reserved
    append(image, dataStart, 4);
    if (alpha == Alpha::kept)
        appendAlphaHeader(image, bitmap, dataSize);
    else
        appendInfoHeader(image, bitmap, bitmap.height, bits, dataSize);
    appendPixels(image, bitmap, bits);
    return image;
}

Image iconFile(const Bitmap& bitmap) {
    constexpr unsigned bits = 32;
    const std::uint64_t dataSize = (dibStride(bitmap.width, bits) + dibStride(bitmap.width, 1)) *
                                   static_cast<std::uint64_t>(bitmap.height);
    refuseSize(iconDirectorySize + infoHeaderSize + dataSize);
    Image image;
    image.reserve(iconDirectorySize + infoHeaderSize + dataSize);
    append(image, 0, 2); // reserved
    append(image, 1, 2); // an icon
    append(image, 1, 2); // with one picture
    for (const Long size : {bitmap.width, bitmap.height})
        append(image, static_cast<std::uint64_t>(size), 1); // 256 is written as 0;
    append(image, 0, 2);                                    // no palette; reserved
    append(image, 1, 2);                                    // planes
    append(image, bits, 2);
    append(image, infoHeaderSize + dataSize, 4);
    append(image, iconDirectorySize, 4);
    appendInfoHeader(image, bitmap, 2 * bitmap.height, bits, dataSize);
    appendPixels(image, bitmap, bits);
    appendMask(image, bitmap);
    return image;
}

} // namespace

std::vector<Byte> imageOfPicture(const Picture& picture) {
    const Bitmap& bitmap = picture.bitmap();
    if (bitmap.pixels.empty())
        throw RuntimeError(ErrorNumber::invalidPicture);
    if (picture.kind() == PictureKind::bitmap)
        return bitmapFile(bitmap, Alpha::dropped);
    return std::max(bitmap.width, bitmap.height) <= largestIcon ? iconFile(bitmap)
                                                                : bitmapFile(bitmap, Alpha::kept);
}

} // namespace lumtex
