#include "worlds/win32/pointer_shape.h"

#include <algorithm>
#include <utility>
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

constexpr unsigned opaque = 255;

/// Cursors hold colours that are not yet multiplied by alpha.
std::uint32_t straight(std::uint32_t premultiplied) {
    const std::uint32_t alpha = premultiplied >> 24U;
    if (alpha == 0 || alpha == opaque)
        return premultiplied;
    std::uint32_t pixel = alpha << 24U;
    for (const unsigned shift : {0U, 8U, 16U})
        pixel |= std::min(((premultiplied >> shift) & 0xFFU) * opaque / alpha, opaque) << shift;
    return pixel;
}

/// One bit a pixel, the highest first, rows padded to 16 bits: set where the screen shows through.
std::vector<Byte> maskOf(const Bitmap& picture) {
    const auto rowBytes = static_cast<std::size_t>((picture.width + 15) / 16 * 2);
    std::vector<Byte> mask(rowBytes * static_cast<std::size_t>(picture.height));
    for (Long y = 0; y < picture.height; ++y) {
        for (Long x = 0; x < picture.width; ++x) {
            if (picture.at(x, y) >> 24U == 0)
                mask[static_cast<std::size_t>(y) * rowBytes + static_cast<std::size_t>(x / 8)] |=
                    static_cast<Byte>(0x80U >> (static_cast<unsigned>(x) % 8));
        }
    }
    return mask;
}

HCURSOR cursorFrom(const Bitmap& picture) {
    if (picture.width <= 0 || picture.height <= 0)
        return nullptr;
    BITMAPINFO form{};
    form.bmiHeader.biSize = sizeof(form.bmiHeader);
    form.bmiHeader.biWidth = picture.width;
    form.bmiHeader.biHeight = -picture.height;
    form.bmiHeader.biPlanes = 1;
    form.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    HBITMAP color = CreateDIBSection(nullptr, &form, DIB_RGB_COLORS, &bits, nullptr, 0);
    const std::vector<Byte> screened = maskOf(picture);
    HBITMAP mask = CreateBitmap(picture.width, picture.height, 1, 1, screened.data());
    HCURSOR cursor = nullptr;
    if (color != nullptr && mask != nullptr) {
        std::transform(
            picture.pixels.begin(), picture.pixels.end(), static_cast<std::uint32_t*>(bits), straight);
        ICONINFO info{};
        info.fIcon = FALSE;
        info.xHotspot = static_cast<DWORD>(picture.width / 2);
        info.yHotspot = static_cast<DWORD>(picture.height / 2);
        info.hbmColor = color;
        info.hbmMask = mask;
        cursor = CreateIconIndirect(&info);
    }
    DeleteObject(color);
    DeleteObject(mask);
    return cursor;
}

} // namespace

PointerShape::~PointerShape() {
    dropCursor();
}

void PointerShape::dropCursor() {
    if (iconCursor_ == nullptr)
        return;
    if (GetCursor() == iconCursor_)
        SetCursor(LoadCursorW(nullptr, IDC_ARROW));
    DestroyCursor(std::exchange(iconCursor_, nullptr));
}

void PointerShape::setIcon(PictureRef icon) {
    dropCursor();
    icon_ = std::move(icon);
    if (icon_)
        iconCursor_ = cursorFrom(icon_->bitmap());
}

HCURSOR PointerShape::cursor() const {
    if (shape_ == pointerCustom && iconCursor_ != nullptr)
        return iconCursor_;
    return LoadCursorW(nullptr, cursorName(shape_));
}

} // namespace lumtex
