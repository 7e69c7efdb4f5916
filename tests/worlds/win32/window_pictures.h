/// \file
/// Pictures of windows of the system.
#pragma once

#include "values/bitmap.h"
#include "worlds/win32/memory_bitmap.h"

#include <functional>

namespace lumtex::testing {

/// What `draw` draws on a black area of this size, opaque.
inline Bitmap drawnPicture(Long width, Long height, const std::function<void(HDC)>& draw) {
    constexpr std::uint32_t opaque = 0xFF000000U;
    const win32::MemoryBitmap board(width, height);
    draw(board.dc());
    GdiFlush();
    Bitmap picture(width, height);
    for (Long y = 0; y < height; ++y)
        for (Long x = 0; x < width; ++x)
            picture.at(x, y) = board.row(y)[x] | opaque;
    return picture;
}

/// What the screen shows of a window and of all that lies in it, once they have painted what waits for that.
/// No other program's window may cover it.
inline Bitmap screenPicture(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    RECT area{};
    GetClientRect(window, &area);
    HWND program = GetAncestor(window, GA_ROOT);
    POINT corner{};
    MapWindowPoints(window, program, &corner, 1);
    return drawnPicture(area.right, area.bottom, [&](HDC target) {
        HDC shown = GetDC(program);
        BitBlt(target, 0, 0, area.right, area.bottom, shown, corner.x, corner.y, SRCCOPY);
        ReleaseDC(program, shown);
    });
}

/// What a window prints of itself and of all that lies in it.
inline Bitmap printedPicture(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    return drawnPicture(area.right, area.bottom, [&](HDC target) { PrintWindow(window, target, 0); });
}

} // namespace lumtex::testing
