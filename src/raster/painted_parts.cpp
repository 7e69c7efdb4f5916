#include "raster/painted_parts.h"

#include <algorithm>
#include <bit>

namespace lumtex::raster {

PaintedParts::PaintedParts(Long width, Long height)
    : width_(width), lines_(static_cast<std::size_t>(height), everything) {
    while ((width - 1) >> partBits_ >= 64)
        ++partBits_;
}

void PaintedParts::noteAll() {
    std::fill(lines_.begin(), lines_.end(), everything);
}

void PaintedParts::clear(std::uint32_t* pixels, std::uint32_t color) {
    for (std::uint64_t& parts : lines_) {
        std::int64_t part = 0;
        while (parts != 0) {
            part += std::countr_zero(parts);
            parts >>= static_cast<unsigned>(std::countr_zero(parts));
            const int together = std::countr_one(parts);
            const std::int64_t end = std::min<std::int64_t>((part + together) << partBits_, width_);
            std::fill(pixels + std::min<std::int64_t>(part << partBits_, width_), pixels + end, color);
            part += together;
            parts = together < 64 ? parts >> static_cast<unsigned>(together) : 0;
        }
        pixels += width_;
    }
}

} // namespace lumtex::raster
