/// Bitmaps, as files and within icons.
#include "values/image_bytes.h"

#include <cstdlib>

namespace lumtex {

namespace {

constexpr std::uint64_t oldHeaderSize = 12; // 16-bit sizes, and three bytes to a colour of the palette
constexpr std::uint64_t plainHeaderSize = 40;
constexpr std::uint64_t longestHeaderSize = 124;

enum Compression : std::uint32_t {
    uncompressed = 0,
    runsOf8Bits = 1,
    runsOf4Bits = 2,
    bitFields = 3,
    bitFieldsWithAlpha = 6,
};

struct BitmapHeader {
    std::uint64_t size = 0;
    std::uint64_t width = 0;
    std::uint64_t height = 0; ///< lines, whether they begin above or below
    std::uint32_t bits = 0;   ///< of a pixel
    std::uint32_t compression = uncompressed;
    std::uint64_t dataSize = 0;    ///< as the header says it; 0 where it need not
    std::uint64_t paletteSize = 0; ///< bytes between the header and the lines that a decoder reads
};

std::uint64_t magnitude(std::uint32_t bits) {
    return static_cast<std::uint64_t>(std::abs(std::int64_t{static_cast<std::int32_t>(bits)}));
}

/// Headers of this size may point to a profile of colours behind the lines, or name a file that holds it.
void checkProfile(const ImageBytes& bytes) {
    constexpr std::uint32_t linked = 0x4C494E4B;   // "LINK"
    constexpr std::uint32_t embedded = 0x4D424544; // "MBED"
    const std::uint32_t space = bytes.lowFirst(56, 4);
    demandOfImage(space != linked);
    if (space == embedded)
        bytes.part(bytes.lowFirst(112, 4), bytes.lowFirst(116, 4));
}

std::uint64_t paletteSizeOf(const BitmapHeader& header, std::uint32_t colorsUsed) {
    constexpr std::uint32_t mostColors = 256;
    demandOfImage(colorsUsed <= mostColors);
    const bool hasPalette = header.bits <= 8;
    const std::uint64_t colors = colorsUsed == 0 && hasPalette ? std::uint64_t{1} << header.bits : colorsUsed;
    std::uint64_t masks = 0;
    // Later headers have room for the masks themselves.
    if (header.size == plainHeaderSize && header.compression == bitFields)
        masks = 3;
    if (header.size == plainHeaderSize && header.compression == bitFieldsWithAlpha)
        masks = 4;
    return 4 * (colors + masks);
}

BitmapHeader oldHeader(const ImageBytes& bytes) {
    BitmapHeader header{oldHeaderSize, bytes.lowFirst(4, 2), bytes.lowFirst(6, 2), bytes.lowFirst(10, 2)};
    demandOfImage(header.bits <= 8 || header.bits == 24);
    header.paletteSize = header.bits <= 8 ? 3 * (std::uint64_t{1} << header.bits) : 0;
    return header;
}

BitmapHeader headerOf(const ImageBytes& bytes) {
    const std::uint64_t size = bytes.lowFirst(0, 4);
    if (size == oldHeaderSize)
        return oldHeader(bytes);
    demandOfImage(size >= plainHeaderSize && size <= longestHeaderSize);
    bytes.part(0, size);
    BitmapHeader header{size, bytes.lowFirst(4, 4), magnitude(bytes.lowFirst(8, 4)), bytes.lowFirst(14, 2)};
    header.compression = bytes.lowFirst(16, 4);
    header.dataSize = bytes.lowFirst(20, 4);
    header.paletteSize = paletteSizeOf(header, bytes.lowFirst(32, 4));
    if (size == longestHeaderSize)
        checkProfile(bytes);
    return header;
}

bool fitsCompression(const BitmapHeader& header) {
    switch (header.compression) {
    case uncompressed:
        return header.bits == 1 || header.bits == 4 || header.bits == 8 || header.bits == 16 ||
               header.bits == 24 || header.bits == 32;
    case runsOf8Bits:
        return header.bits == 8;
    case runsOf4Bits:
        return header.bits == 4;
    case bitFields:
    case bitFieldsWithAlpha:
        return header.bits == 16 || header.bits == 32;
    default: // whole images of other formats among them, which only printers take
        return false;
    }
}

/// Lines are filled up to multiples of four bytes.
std::uint64_t linesSize(std::uint64_t width, std::uint64_t height, std::uint64_t bits) {
    return (width * bits + 31) / 32 * 4 * height;
}

} // namespace

void checkBitmapLines(const ImageBytes& bytes, std::uint64_t linesAt, PixelSum& pixels) {
    const BitmapHeader header = headerOf(bytes);
    demandOfImage(fitsCompression(header));
    pixels.add(header.width, header.height);
    // A palette may begin behind the lines' start where its last colours are never used; all of it is read.
    bytes.part(header.size, header.paletteSize);
    const bool hasRuns = header.compression == runsOf8Bits || header.compression == runsOf4Bits;
    // Decoders go through runs for as many bytes as the header says.
    demandOfImage(!hasRuns || header.dataSize > 1);
    bytes.part(linesAt, hasRuns ? header.dataSize : linesSize(header.width, header.height, header.bits));
}

void checkIconLines(const ImageBytes& bytes, PixelSum& pixels) {
    const BitmapHeader header = headerOf(bytes);
    demandOfImage(header.compression == uncompressed && fitsCompression(header) && header.height % 2 == 0);
    const std::uint64_t height = header.height / 2;
    pixels.add(header.width, height);
    bytes.part(header.size + header.paletteSize,
               linesSize(header.width, height, header.bits) + linesSize(header.width, height, 1));
}

} // namespace lumtex
