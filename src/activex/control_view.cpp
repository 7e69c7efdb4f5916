/// The control's picture in any device context.
#include "activex/control_core.h"
#include "values/runtime_error.h"

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

    static constexpr DWORD bytesPerPixel = 4;

    static BITMAPINFOHEADER header(LONG width, LONG height) {
        BITMAPINFOHEADER header{};
        header.biSize = sizeof(header);
        header.biWidth = width;
        header.biHeight = height; // the lowest row first: not every printer knows the other order
        header.biPlanes = 1;
        header.biBitCount = 32;
        header.biSizeImage = static_cast<DWORD>(width * height) * bytesPerPixel;
        return header;
    }

  private:
    HDC dc_;
    HBITMAP bitmap_ = nullptr;
    void* bits_ = nullptr;
    HGDIOBJ before_ = nullptr;
};

} // namespace

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
    const PrintSheet sheet(pixels.cx, pixels.cy);
    SendMessageW(
        window(), WM_PRINT, reinterpret_cast<WPARAM>(sheet.dc()), PRF_CLIENT | PRF_CHILDREN | PRF_ERASEBKGND);
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
