/// \file
/// Arithmetic on pixels 0xAARRGGBB, and how pixels lie in files and in the memory of systems.
#pragma once

#include "values/bitmap.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace lumtex {

constexpr Double himetricPerInch = 2540;

/// A premultiplied pixel with its colour as it is without alpha, which stays beside it; 0 where nothing
/// shows.
constexpr std::uint32_t straight(std::uint32_t pixel) {
    const std::uint32_t alpha = pixel >> 24U;
    if (alpha == 0)
        return 0;
    std::uint32_t result = alpha << 24U;
    for (unsigned shift = 0; shift < 24; shift += 8)
        result |= std::min((((pixel >> shift) & 0xFFU) * 255 + alpha / 2) / alpha, 255U) << shift;
    return result;
}

/// The pixel of this colour and alpha, both from 0 to 255; what `pixel` has as its alpha does not count.
constexpr std::uint32_t premultiplied(std::uint32_t pixel, std::uint32_t alpha) {
    std::uint32_t result = alpha << 24U;
    for (unsigned shift = 0; shift < 24; shift += 8)
        result |= (((pixel >> shift) & 0xFFU) * alpha + 127) / 255 << shift;
    return result;
}

/// Bytes of a row of `width` pixels, padded to a multiple of 4.
constexpr std::uint64_t dibStride(Long width, unsigned bitsPerPixel) {
    return (static_cast<std::uint64_t>(width) * bitsPerPixel + 31) / 32 * 4;
}

/// One bit a pixel, the highest first, rows from the top, padded to `rowBits`: set where nothing of the
/// picture is to be seen.
std::vector<Byte> maskRows(const Bitmap& picture, unsigned rowBits);

} // namespace lumtex
