/// \file
/// Pixels in memory: the common currency of pictures, surfaces and tests.
#pragma once

#include "values/types.h"

#include <vector>

namespace lumtex {

/// Rows from the top, no padding; each pixel is 0xAARRGGBB with colour premultiplied by alpha.
struct Bitmap {
    Long width = 0;  ///< pixels
    Long height = 0; ///< pixels
    std::vector<std::uint32_t> pixels;

    Bitmap() = default;
    /// `fill` everywhere; negative sizes count as 0.
    Bitmap(Long columns, Long rows, std::uint32_t fill = 0)
        : width(columns > 0 ? columns : 0), height(rows > 0 ? rows : 0),
          pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), fill) {}

    std::uint32_t& at(Long x, Long y) { return pixels[index(x, y)]; }
    std::uint32_t at(Long x, Long y) const { return pixels[index(x, y)]; }
    bool operator==(const Bitmap&) const = default;

  private:
    std::size_t index(Long x, Long y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
    }
};

/// One channel (0 red, 1 green, 2 blue) of a premultiplied pixel, with the alpha divided out again.
constexpr Byte straightChannel(std::uint32_t pixel, unsigned channel) {
    const unsigned alpha = pixel >> 24U;
    const unsigned value = (pixel >> (16 - 8 * channel)) & 0xFFU;
    return static_cast<Byte>(alpha == 0 ? 0 : (value * 255 + alpha / 2) / alpha);
}

} // namespace lumtex
