/// \file
/// How much of each pixel a glyph covers.
#pragma once

#include "values/types.h"

#include <vector>

namespace lumtex::raster {

/// Coverage from 0 to 255, row after row. Rows are filled up with zeros to whole steps, in which they are
/// blended.
struct Mask {
    static constexpr Long step = 4; ///< pixels

    Mask() = default;
    Mask(Long columns, Long rows)
        : width(columns), height(rows), stride((columns + step - 1) / step * step),
          coverage(static_cast<std::size_t>(stride) * static_cast<std::size_t>(rows)) {}

    const Byte* row(Long y) const { return coverage.data() + std::ptrdiff_t{y} * stride; }
    Byte* row(Long y) { return coverage.data() + std::ptrdiff_t{y} * stride; }

    Long width = 0;
    Long height = 0;
    Long stride = 0; ///< from a row to the next
    std::vector<Byte> coverage;
};

} // namespace lumtex::raster
