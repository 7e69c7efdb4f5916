/// \file
/// One set of system colours for both surfaces.
#pragma once

#include "raster/system_colors.h"
#include "worlds/win32/windows_api.h"

#include <array>
#include <numeric>

namespace lumtex::testing {

/// The software surface has its own table of system colours. While this lives, the system has the same.
class SameSystemColors {
  public:
    SameSystemColors() {
        std::iota(numbers_.begin(), numbers_.end(), 0);
        for (std::size_t i = 0; i < numbers_.size(); ++i) {
            const std::uint32_t color = raster::systemColors[i];
            former_[i] = GetSysColor(numbers_[i]);
            colors_[i] = RGB((color >> 16U) & 0xFFU, (color >> 8U) & 0xFFU, color & 0xFFU);
        }
        SetSysColors(count, numbers_.data(), colors_.data());
    }
    SameSystemColors(const SameSystemColors&) = delete;
    SameSystemColors& operator=(const SameSystemColors&) = delete;
    ~SameSystemColors() { SetSysColors(count, numbers_.data(), former_.data()); }

  private:
    static constexpr int count = static_cast<int>(raster::systemColors.size());
    std::array<INT, count> numbers_{};
    std::array<COLORREF, count> colors_{};
    std::array<COLORREF, count> former_{};
};

} // namespace lumtex::testing
