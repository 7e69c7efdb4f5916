/// Pictures as file images.
#include "platform/picture_image.h"
#include "platform/runtime_error.h"
#include "platform/win32/ole_picture.h"
#include "platform/win32/win32_runtime.h"

#include <algorithm>

namespace lumtex {

namespace {

constexpr std::uint64_t mostPixelsToAByte = 8;

std::uint32_t numberAt(std::span<const Byte> image, std::size_t offset, unsigned bytes) {
    std::uint32_t number = 0;
    for (unsigned i = 0; i < bytes; ++i)
        number |= std::uint32_t{image[offset + i]} << (8 * i);
    return number;
}

/// As a bitmap file declares them, in both of its forms.
std::uint64_t pixelsOfBitmapFile(std::span<const Byte> image) {
    constexpr std::size_t headerEnd = 26;
    if (image.size() < headerEnd)
        throw RuntimeError(invalidPicture);
    constexpr std::uint32_t oldHeaderSize = 12;
    if (numberAt(image, 14, 4) == oldHeaderSize)
        return std::uint64_t{numberAt(image, 18, 2)} * numberAt(image, 20, 2);
    const auto magnitude = [&](std::size_t offset) {
        const auto value = static_cast<std::int32_t>(numberAt(image, offset, 4));
        return static_cast<std::uint64_t>(std::abs(std::int64_t{value}));
    };
    return magnitude(18) * magnitude(22);
}

bool startsWith(std::span<const Byte> image, std::initializer_list<Byte> signature) {
    return image.size() >= signature.size() && std::equal(signature.begin(), signature.end(), image.begin());
}

} // namespace

std::vector<Byte> Win32Runtime::imageOfPicture(const Picture& picture) const {
    return lumtex::imageOfPicture(picture);
}

PictureRef Win32Runtime::pictureOfImage(std::span<const Byte> image) const {
    const bool isBitmap = startsWith(image, {'B', 'M'});
    const bool isIcon = startsWith(image, {0, 0, 1, 0}) || startsWith(image, {0, 0, 2, 0});
    if (!isBitmap && !isIcon)
        throw RuntimeError(invalidPicture);
    // Before the system makes room for them.
    if (isBitmap && pixelsOfBitmapFile(image) > image.size() * mostPixelsToAByte)
        throw RuntimeError(invalidPicture);
    PictureRef picture = loadOlePicture(image);
    const Bitmap& pixels = picture->bitmap();
    if (static_cast<std::uint64_t>(pixels.width) * static_cast<std::uint64_t>(pixels.height) >
        image.size() * mostPixelsToAByte)
        throw RuntimeError(invalidPicture);
    return picture;
}

} // namespace lumtex
