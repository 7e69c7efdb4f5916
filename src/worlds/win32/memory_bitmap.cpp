#include "worlds/win32/memory_bitmap.h"

#include "values/runtime_error.h"
#include "worlds/win32/dib_info.h"

#include <algorithm>

namespace lumtex::win32 {

MemoryBitmap::MemoryBitmap(Long width, Long height, RowOrder order)
    : width_(std::max<Long>(width, 1)), height_(std::max<Long>(height, 1)) {
    // The header counts the bytes of a bitmap in 32 bits.
    constexpr std::int64_t mostPixels = 0x7FFFFFFF / 4;
    if (std::int64_t{width_} * height_ > mostPixels)
        throw RuntimeError(ErrorNumber::outOfMemory);
    const BITMAPINFO info = dibInfo(width_, order == RowOrder::fromTop ? -height_ : height_, 32);
    void* bits = nullptr;
    bitmap_ = OwnedBitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    dc_ = OwnedContext(CreateCompatibleDC(nullptr));
    if (!bitmap_ || !dc_)
        throw RuntimeError(ErrorNumber::outOfMemory);
    pixels_ = static_cast<std::uint32_t*>(bits);
    former_ = SelectObject(dc_.get(), bitmap_.get());
}

MemoryBitmap::~MemoryBitmap() {
    SelectObject(dc_.get(), former_);
}

} // namespace lumtex::win32
