#include "worlds/win32/pointer_shape.h"

#include "values/pixels.h"
#include "worlds/win32/dib_info.h"

#include <algorithm>
#include <vector>

namespace lumtex {

namespace {

struct CursorOfShape {
    Integer shape;
    const wchar_t* cursor;
};

const wchar_t* cursorName(Integer shape) {
    static const CursorOfShape cursors[] = {
        {2, IDC_CROSS},
        {3, IDC_IBEAM},
        {5, IDC_SIZEALL},
        {6, IDC_SIZENESW},
        {7, IDC_SIZENS},
        {8, IDC_SIZENWSE},
        {9, IDC_SIZEWE},
        {10, IDC_UPARROW},
        {11, IDC_WAIT},
        {12, IDC_NO},
        {13, IDC_APPSTARTING},
        {14, IDC_HELP},
        {15, IDC_SIZEALL},
    };
    const auto* found = std::find_if(std::begin(cursors), std::end(cursors), [=](const CursorOfShape& known) {
        return known.shape == shape;
    });
    return found != std::end(cursors) ? found->cursor : IDC_ARROW;
}

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
    if (shape_ == pointerCustom && iconCursor_)
        return iconCursor_.get();
    return LoadCursorW(nullptr, cursorName(shape_));
}

} // namespace lumtex
