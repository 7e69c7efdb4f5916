/// \file
/// How pixels in memory are described to the system.
#pragma once

#include "values/types.h"
#include "worlds/win32/windows_api.h"

namespace lumtex::win32 {

/// Uncompressed, without a palette. Rows run from the lowest; a negative height says from the top.
inline BITMAPINFO dibInfo(Long width, Long height, WORD bitsPerPixel) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = bitsPerPixel;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

} // namespace lumtex::win32
