#include "values/pixels.h"

#include <cstddef>

namespace lumtex {

std::vector<Byte> maskRows(const Bitmap& picture, unsigned rowBits) {
    const auto width = static_cast<std::size_t>(picture.width);
    const auto height = static_cast<std::size_t>(picture.height);
    const std::size_t stride = (width + rowBits - 1) / rowBits * rowBits / 8;
    std::vector<Byte> rows(stride * height);
    for (std::size_t y = 0; y < height; ++y) {
        for (std::size_t x = 0; x < width; ++x) {
            if (picture.at(static_cast<Long>(x), static_cast<Long>(y)) >> 24U == 0)
                rows[stride * y + x / 8] |= static_cast<Byte>(0x80U >> (x % 8));
        }
    }
    return rows;
}

} // namespace lumtex
