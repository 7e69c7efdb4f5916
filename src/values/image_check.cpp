/// Which format an image is of, and the directories of icons.
#include "values/image_check.h"

#include "values/image_bytes.h"

namespace lumtex {

namespace {

constexpr std::uint64_t fileHeaderSize = 14;
constexpr std::uint64_t directorySize = 6;
constexpr std::uint64_t entrySize = 16;

void checkBitmapFile(const ImageBytes& image, PixelSum& pixels) {
    const std::uint32_t linesAt = image.lowFirst(10, 4);
    demandOfImage(linesAt >= fileHeaderSize);
    checkBitmapLines(image.from(fileHeaderSize), linesAt - fileHeaderSize, pixels);
}

/// Every entry, not only the one that will be shown: which one that is differs from decoder to decoder.
void checkIconFile(const ImageBytes& image, PixelSum& pixels) {
    const std::uint32_t count = image.lowFirst(4, 2);
    demandOfImage(count > 0);
    const ImageBytes entries = image.part(directorySize, count * entrySize);
    for (std::uint32_t i = 0; i < count; ++i) {
        const ImageBytes entry = entries.part(i * entrySize, entrySize);
        const std::uint32_t offset = entry.lowFirst(12, 4);
        demandOfImage(offset >= directorySize + count * entrySize);
        const ImageBytes picture = image.part(offset, entry.lowFirst(8, 4));
        if (isPng(picture))
            checkPng(picture, pixels);
        else
            checkIconLines(picture, pixels);
    }
}

struct Kind {
    std::initializer_list<Byte> signature;
    ImageFormat format;
    void (*check)(const ImageBytes& image, PixelSum& pixels);
};

} // namespace

ImageFormat checkImage(std::span<const Byte> bytes, std::uint64_t freePixels) {
    static constexpr Byte pngMark = 0x89;
    static const Kind kinds[] = {
        {{'B', 'M'}, ImageFormat::bitmap, checkBitmapFile},
        {{0, 0, 1, 0}, ImageFormat::icon, checkIconFile},
        {{0, 0, 2, 0}, ImageFormat::cursor, checkIconFile},
        {{pngMark, 'P', 'N', 'G'}, ImageFormat::png, checkPng},
        {{'G', 'I', 'F', '8'}, ImageFormat::gif, checkGif},
        {{0xFF, 0xD8, 0xFF}, ImageFormat::jpeg, checkJpeg},
    };
    const ImageBytes image(bytes);
    for (const Kind& kind : kinds) {
        if (!image.startsWith(kind.signature))
            continue;
        PixelSum pixels(image.size() * mostPixelsToAByte + freePixels);
        kind.check(image, pixels);
        return kind.format;
    }
    throw RuntimeError(ErrorNumber::invalidPicture);
}

bool isSoundImage(std::span<const Byte> image, std::uint64_t freePixels) {
    try {
        checkImage(image, freePixels);
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

} // namespace lumtex
