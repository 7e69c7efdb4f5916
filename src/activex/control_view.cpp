/// The control's picture in any device context.
#include "activex/control_core.h"
#include "worlds/win32/dib_info.h"
#include "worlds/win32/memory_bitmap.h"

namespace lumtex::win32 {

void ControlCore::draw(HDC target, const RECT& bounds) {
    lmListView& shown = list();
    if (!std::exchange(painted_, true)) {
        drawing_ = true;
        shown.Redraw();
        drawing_ = false;
    }
    const SIZE pixels = size();
    if (pixels.cx <= 0 || pixels.cy <= 0)
        return;
    // The lowest row first: not every printer knows the other order.
    const MemoryBitmap sheet(pixels.cx, pixels.cy, RowOrder::fromBottom);
    SendMessageW(
        window(), WM_PRINT, reinterpret_cast<WPARAM>(sheet.dc()), PRF_CLIENT | PRF_CHILDREN | PRF_ERASEBKGND);
    GdiFlush();
    constexpr DWORD bytesPerPixel = 4;
    BITMAPINFO info = dibInfo(pixels.cx, pixels.cy, 8 * bytesPerPixel);
    info.bmiHeader.biSizeImage = static_cast<DWORD>(pixels.cx * pixels.cy) * bytesPerPixel;
    StretchDIBits(target,
                  bounds.left,
                  bounds.top,
                  bounds.right - bounds.left,
                  bounds.bottom - bounds.top,
                  0,
                  0,
                  pixels.cx,
                  pixels.cy,
                  sheet.row(0),
                  &info,
                  DIB_RGB_COLORS,
                  SRCCOPY);
}

} // namespace lumtex::win32
