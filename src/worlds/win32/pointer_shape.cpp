#include "worlds/win32/pointer_shape.h"

#include "values/pixels.h"
#include "worlds/win32/dib_info.h"

#include <algorithm>
#include <vector>

namespace lumtex::win32 {

namespace {

OwnedIcon cursorFrom(const Bitmap& picture) {
    if (picture.width <= 0 || picture.height <= 0)
        return {};
    const BITMAPINFO form = dibInfo(picture.width, -picture.height, 32);
    void* bits = nullptr;
    const OwnedBitmap color(CreateDIBSection(nullptr, &form, DIB_RGB_COLORS, &bits, nullptr, 0));
    const std::vector<Byte> hidden = maskRows(picture, 16);
    const OwnedBitmap mask(CreateBitmap(picture.width, picture.height, 1, 1, hidden.data()));
    if (!color || !mask)
        return {};
    std::transform(picture.pixels.begin(), picture.pixels.end(), static_cast<std::uint32_t*>(bits), straight);
    ICONINFO info{};
    info.fIcon = FALSE;
    info.xHotspot = static_cast<DWORD>(picture.width / 2);
    info.yHotspot = static_cast<DWORD>(picture.height / 2);
    info.hbmColor = color.get();
    info.hbmMask = mask.get();
    return OwnedIcon(CreateIconIndirect(&info));
}

} // namespace

PointerShape::~PointerShape() {
    dropCursor();
}

void PointerShape::dropCursor() {
    if (iconCursor_ && GetCursor() == iconCursor_.get())
        SetCursor(LoadCursorW(nullptr, IDC_ARROW));
    iconCursor_ = {};
}

void PointerShape::setIcon(PictureRef icon) {
    dropCursor();
    icon_ = std::move(icon);
    if (icon_)
        iconCursor_ = cursorFrom(icon_->bitmap());
}

HCURSOR PointerShape::cursor() const {
    if (shape_ == CursorShape::custom && iconCursor_)
        return iconCursor_.get();
    return LoadCursorW(nullptr, IDC_ARROW);
}

} // namespace lumtex::win32
