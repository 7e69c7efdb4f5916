/// Images whose size stands in their headers alone.
#include "values/image_bytes.h"

namespace lumtex {

namespace {

constexpr Byte jpegMark = 0xFF;

/// Lengths and data of a GIF's blocks, up to the one without data.
std::uint64_t behindGifBlocks(const ImageBytes& image, std::uint64_t place) {
    while (const Byte length = image.at(place))
        place += 1 + std::uint64_t{length};
    return place + 1;
}

std::uint64_t behindGifColors(std::uint64_t place, Byte flags) {
    const bool hasColors = (flags & 0x80U) != 0;
    return hasColors ? place + 3 * (std::uint64_t{2} << (flags & 7U)) : place;
}

bool isSizeMark(Byte mark) {
    constexpr Byte tables = 0xC4;
    constexpr Byte extension = 0xC8;
    constexpr Byte conditioning = 0xCC;
    return mark >= 0xC0 && mark <= 0xCF && mark != tables && mark != extension && mark != conditioning;
}

/// Where the next mark of a JPEG stands that is more than a zero or a restart within its data.
std::uint64_t nextJpegMark(const ImageBytes& image, std::uint64_t place) {
    for (;; ++place) {
        if (image.at(place) != jpegMark)
            continue;
        const Byte mark = image.at(place + 1);
        const bool isRestart = mark >= 0xD0 && mark <= 0xD7;
        if (mark != 0 && mark != jpegMark && !isRestart)
            return place;
    }
}

} // namespace

bool isPng(const ImageBytes& image) {
    return image.startsWith({0x89, 'P', 'N', 'G', 13, 10, 26, 10});
}

void checkPng(const ImageBytes& image, PixelSum& pixels) {
    constexpr std::uint64_t signatureSize = 8;
    constexpr std::uint64_t chunkFrame = 12; // length, name and checksum around its data
    constexpr std::uint32_t headerName = 0x49484452;
    constexpr std::uint32_t dataName = 0x49444154;
    constexpr std::uint32_t endName = 0x49454E44;
    demandOfImage(isPng(image));
    demandOfImage(image.highFirst(8, 4) == 13 && image.highFirst(12, 4) == headerName);
    pixels.add(image.highFirst(16, 4), image.highFirst(20, 4));
    std::uint64_t place = signatureSize;
    bool hasData = false;
    for (std::uint32_t name = 0; name != endName;) {
        const std::uint32_t length = image.highFirst(place, 4);
        name = image.highFirst(place + 4, 4);
        image.part(place, chunkFrame + length);
        demandOfImage((name == headerName) == (place == signatureSize)); // one, and at the start
        hasData = hasData || name == dataName;
        place += chunkFrame + length;
    }
    demandOfImage(hasData);
}

void checkGif(const ImageBytes& image, PixelSum& pixels) {
    constexpr Byte extension = 0x21;
    constexpr Byte frame = 0x2C;
    constexpr Byte end = 0x3B;
    constexpr std::uint64_t headerSize = 13;
    constexpr std::uint64_t frameSize = 10;
    pixels.add(image.lowFirst(6, 2), image.lowFirst(8, 2));
    std::uint64_t place = behindGifColors(headerSize, image.at(10));
    bool hasFrame = false;
    for (Byte block = image.at(place); block != end; block = image.at(place)) {
        demandOfImage(block == extension || block == frame);
        if (block == extension) {
            place = behindGifBlocks(image, place + 2);
            continue;
        }
        hasFrame = true;
        // Each frame is laid over all of the picture.
        pixels.add(image.lowFirst(place + 5, 2), image.lowFirst(place + 7, 2));
        place = behindGifColors(place + frameSize, image.at(place + 9));
        place = behindGifBlocks(image, place + 1); // behind the width of its codes
    }
    demandOfImage(hasFrame);
}

void checkJpeg(const ImageBytes& image, PixelSum& pixels) {
    constexpr Byte scan = 0xDA;
    constexpr Byte end = 0xD9;
    // A picture that comes in many scans is gone over for each of them; usual are ten.
    constexpr int mostScans = 64;
    bool hasSize = false;
    int scans = 0;
    std::uint64_t place = 2;
    for (;;) {
        place = nextJpegMark(image, place);
        const Byte mark = image.at(place + 1);
        if (mark == end)
            break;
        const std::uint32_t length = image.highFirst(place + 2, 2);
        demandOfImage(length >= 2);
        image.part(place + 2, length);
        if (isSizeMark(mark)) {
            demandOfImage(!hasSize);
            hasSize = true;
            pixels.add(image.highFirst(place + 7, 2), image.highFirst(place + 5, 2));
        }
        scans += mark == scan ? 1 : 0;
        demandOfImage(scans <= mostScans);
        place += 2 + std::uint64_t{length};
    }
    demandOfImage(hasSize && scans > 0);
}

} // namespace lumtex
