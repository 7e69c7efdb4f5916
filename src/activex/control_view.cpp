/// The control's picture in any device context.
#include "activex/control_core.h"
#include "platform/runtime_error.h"

#include <vector>

namespace lumtex {

namespace {

/// A bitmap of the control's size to print into.
class PrintSheet {
  public:
    PrintSheet(LONG width, LONG height) : dc_(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader = header(width, height);
        bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits_, nullptr, 0);
        if (dc_ == nullptr || bitmap_ == nullptr) {
            DeleteObject(bitmap_);
            DeleteDC(dc_);
            throw RuntimeError(outOfMemory);
        }
        before_ = SelectObject(dc_, bitmap_);
    }
    PrintSheet(const PrintSheet&) = delete;
    PrintSheet& operator=(const PrintSheet&) = delete;
    ~PrintSheet() {
        SelectObject(dc_, before_);
        DeleteObject(bitmap_);
        DeleteDC(dc_);
    }

    HDC dc() const { return dc_; }
    const void* bits() const { return bits_; }

    static BITMAPINFOHEADER header(LONG width, LONG height) {
        BITMAPINFOHEADER header{};
        header.biSize = sizeof(header);
        header.biWidth = width;
        header.biHeight = -height; // the first row is the highest
        header.biPlanes = 1;
        header.biBitCount = 32;
        return header;
    }

  private:
    HDC dc_;
    HBITMAP bitmap_ = nullptr;
    void* bits_ = nullptr;
    HGDIOBJ before_ = nullptr;
};

/// A window and what lies in it, from the lowest to the highest. `origin` is where the window lies on the
/// sheet.
void print(HWND window, HDC sheet, POINT origin) {
    const int saved = SaveDC(sheet);
    SetWindowOrgEx(sheet, -origin.x, -origin.y, nullptr);
    RECT size{};
    GetClientRect(window, &size);
    IntersectClipRect(sheet, 0, 0, size.right, size.bottom);
    SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(sheet), PRF_CLIENT | PRF_ERASEBKGND);
    const HWND top = GetWindow(window, GW_CHILD);
    for (HWND child = top != nullptr ? GetWindow(top, GW_HWNDLAST) : nullptr; child != nullptr;
         child = GetWindow(child, GW_HWNDPREV)) {
        if ((GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) == 0)
            continue;
        POINT corner{0, 0};
        MapWindowPoints(child, window, &corner, 1);
        print(child, sheet, {origin.x + corner.x, origin.y + corner.y});
    }
    RestoreDC(sheet, saved);
}

} // namespace

void ControlCore::draw(HDC target, const RECT& bounds) {
    lmListView& shown = list();
    if (!std::exchange(painted_, true))
        shown.Redraw();
    const SIZE pixels = size();
    if (pixels.cx <= 0 || pixels.cy <= 0)
        return;
    const PrintSheet sheet(pixels.cx, pixels.cy);
    print(window(), sheet.dc(), {0, 0});
    GdiFlush();
    BITMAPINFO info{};
    info.bmiHeader = PrintSheet::header(pixels.cx, pixels.cy);
    StretchDIBits(target,
                  bounds.left,
                  bounds.top,
                  bounds.right - bounds.left,
                  bounds.bottom - bounds.top,
                  0,
                  0,
                  pixels.cx,
                  pixels.cy,
                  sheet.bits(),
                  &info,
                  DIB_RGB_COLORS,
                  SRCCOPY);
}

} // namespace lumtex
