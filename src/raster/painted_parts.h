/// \file
/// What of a surface was painted since it was cleared.
#pragma once

#include "values/geometry.h"

#include <cstdint>
#include <vector>

namespace lumtex::raster {

/// Knows of each line which of at most 64 parts of it were painted, so that clearing in the same colour again
/// may pass by the others.
class PaintedParts {
  public:
    PaintedParts() = default;
    /// All counts as painted. Throws std::bad_alloc.
    PaintedParts(Long width, Long height);

    /// `area` lies in the surface, and may be empty.
    void note(const Rect& area) {
        if (area.Left >= area.Right)
            return;
        const std::uint64_t fromFirst = everything << static_cast<unsigned>(area.Left >> partBits_);
        const std::uint64_t toLast =
            everything >> (63U - static_cast<unsigned>((area.Right - 1) >> partBits_));
        for (Long y = area.Top; y < area.Bottom; ++y)
            lines_[static_cast<std::size_t>(y)] |= fromFirst & toLast;
    }
    void noteAll();

    /// Fills what was painted, and counts it as not painted. `pixels` are those of the whole surface.
    void clear(std::uint32_t* pixels, std::uint32_t color);

  private:
    static constexpr std::uint64_t everything = ~std::uint64_t{0};

    Long width_ = 0;
    int partBits_ = 0;                 ///< a part has 2 to the power of these pixels
    std::vector<std::uint64_t> lines_; ///< the leftmost part is the lowest bit
};

} // namespace lumtex::raster
