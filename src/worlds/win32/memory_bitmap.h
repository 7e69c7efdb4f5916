/// \file
/// Pixels that the system draws on and that can be read and written in place.
#pragma once

#include "values/types.h"
#include "worlds/win32/owned.h"

#include <cstdint>

namespace lumtex::win32 {

/// Which row of a bitmap comes first in memory.
enum class RowOrder { fromTop, fromBottom };

/// A bitmap of 32 bits per pixel, 0xAARRGGBB, selected into a memory device context of its
/// own. What the system draws leaves the highest byte undefined.
class MemoryBitmap {
  public:
    /// All zero. A size below 1 counts as 1, because there is no smaller bitmap. Throws RuntimeError 7 if
    /// the system has no room for it.
    MemoryBitmap(Long width, Long height, RowOrder order = RowOrder::fromTop);
    MemoryBitmap(const MemoryBitmap&) = delete;
    MemoryBitmap& operator=(const MemoryBitmap&) = delete;
    ~MemoryBitmap();

    HDC dc() const { return dc_.get(); }
    Long width() const { return width_; }
    Long height() const { return height_; }
    /// The first pixel of the row that is number `y` in memory. The system may put drawing off: call
    /// `GdiFlush` between drawing and this.
    std::uint32_t* row(Long y) const {
        return pixels_ + static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
    }

  private:
    Long width_;
    Long height_;
    OwnedBitmap bitmap_;
    OwnedContext dc_;          ///< goes before the bitmap
    HGDIOBJ former_ = nullptr; ///< goes back into the context before that is deleted
    std::uint32_t* pixels_ = nullptr;
};

} // namespace lumtex::win32
