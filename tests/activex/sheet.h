/// \file
/// What a control is drawn on.
#pragma once

#include "worlds/win32/windows_api.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace lumtex::testing {

/// A picture of 32 bits per pixel, all of one colour at first.
class Sheet {
  public:
    Sheet(LONG width, LONG height)
        : dc(CreateCompatibleDC(nullptr)), count(static_cast<std::size_t>(width * height)) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        pixels = static_cast<std::uint32_t*>(bits);
        SelectObject(dc, bitmap);
        std::fill_n(pixels, count, 0x00FF00U);
    }
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;
    ~Sheet() {
        DeleteDC(dc);
        DeleteObject(bitmap);
    }

    std::ptrdiff_t howMany(std::uint32_t color) const {
        GdiFlush();
        return std::count_if(
            pixels, pixels + count, [&](auto pixel) { return (pixel & 0xFFFFFFU) == color; });
    }

    /// All pixels without their unused bits, the rows from the top.
    std::vector<std::uint32_t> colors() const {
        GdiFlush();
        std::vector<std::uint32_t> all(pixels, pixels + count);
        for (std::uint32_t& color : all)
            color &= 0xFFFFFFU;
        return all;
    }

    HDC dc;
    HBITMAP bitmap = nullptr;
    std::uint32_t* pixels = nullptr;
    std::size_t count;
};

} // namespace lumtex::testing
