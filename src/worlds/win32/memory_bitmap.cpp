#include "worlds/win32/memory_bitmap.h"

#include "values/runtime_error.h"

#include <algorithm>

namespace lumtex {

MemoryBitmap::MemoryBitmap(Long width, Long height)
    : width_(std::max<Long>(width, 1)), height_(std::max<Long>(height, 1)) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width_;
    info.bmiHeader.biHeight = -height_; // rows from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    // The header counts the bytes of a bitmap in 32 bits.
    constexpr std::int64_t mostPixels = 0x7FFFFFFF / 4;
    if (std::int64_t{width_} * height_ > mostPixels)
        throw RuntimeError(outOfMemory);
    void* bits = nullptr;
    bitmap_ = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap_ == nullptr)
        throw RuntimeError(outOfMemory);
    dc_ = CreateCompatibleDC(nullptr);
    if (dc_ == nullptr) {
        DeleteObject(bitmap_);
        throw RuntimeError(outOfMemory);
    }
    pixels_ = static_cast<std::uint32_t*>(bits);
    former_ = SelectObject(dc_, bitmap_);
}

MemoryBitmap::~MemoryBitmap() {
    SelectObject(dc_, former_);
    DeleteDC(dc_);
    DeleteObject(bitmap_);
}

} // namespace lumtex
