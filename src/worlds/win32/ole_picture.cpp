#include "worlds/win32/ole_picture.h"

#include "values/image_check.h"
#include "values/pixels.h"
#include "values/rounding.h"
#include "values/runtime_error.h"
#include "worlds/win32/dib_info.h"
#include "worlds/win32/memory_bitmap.h"
#include "worlds/win32/object_pairs.h"
#include "worlds/win32/owned.h"
#include "worlds/win32/property_sink.h"
#include "worlds/win32/screen_density.h"

#include <algorithm>
#include <optional>

namespace lumtex::win32 {

namespace {

ObjectPairs<const Picture, IPictureDisp>& pairs() {
    static ObjectPairs<const Picture, IPictureDisp> all;
    return all;
}

/// Rounds as the system does when it makes a picture's size from its pixels.
Long pixelsOf(Long himetrics, int pixelsPerInch) {
    return roundToLong(himetrics * static_cast<Double>(pixelsPerInch) / himetricPerInch);
}

/// Handles of drawing objects have 32 significant bits, extended by their sign.
HGDIOBJ handleOf(OLE_HANDLE handle) {
    return reinterpret_cast<HGDIOBJ>(static_cast<INT_PTR>(static_cast<int>(handle)));
}

/// The size of a bitmap is its own; that of others follows from the screen's pixels per inch.
SIZE pixelSizeOf(IPicture* picture, short type) {
    OLE_HANDLE handle = 0;
    if (type == PICTYPE_BITMAP && SUCCEEDED(picture->get_Handle(&handle))) {
        BITMAP bitmap{};
        if (GetObjectW(handleOf(handle), sizeof bitmap, &bitmap) != 0)
            return {bitmap.bmWidth, bitmap.bmHeight};
    }
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
    picture->get_Width(&width);
    picture->get_Height(&height);
    const PixelDensity density = screenDensity();
    return {pixelsOf(width, density.x), pixelsOf(height, density.y)};
}

void renderOver(IPicture* picture, const MemoryBitmap& sheet, DWORD ground) {
    PatBlt(sheet.dc(), 0, 0, sheet.width(), sheet.height(), ground);
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
    picture->get_Width(&width);
    picture->get_Height(&height);
    // Heights of pictures count upwards.
    picture->Render(sheet.dc(), 0, 0, sheet.width(), sheet.height(), 0, height, width, -height, nullptr);
    GdiFlush();
}

/// A pixel as it looks on black and on white: what shines through makes the difference. One that inverts what
/// is below it is taken for an opaque one.
std::uint32_t pixelFrom(std::uint32_t onBlack, std::uint32_t onWhite) {
    const int through = static_cast<int>((onWhite >> 8U) & 0xFFU) - static_cast<int>((onBlack >> 8U) & 0xFFU);
    const auto alpha = static_cast<std::uint32_t>(255 - std::clamp(through, 0, 255));
    std::uint32_t pixel = alpha << 24U;
    for (unsigned shift = 0; shift < 24; shift += 8)
        pixel |= std::min((onBlack >> shift) & 0xFFU, alpha) << shift;
    return pixel;
}

/// Pixels with 32 bits each, rows from the top; all zero where they cannot be read.
Bitmap bitsOf(HBITMAP source, Long width, Long height) {
    Bitmap bits(width, height);
    BITMAPINFO info = dibInfo(bits.width, -bits.height, 32);
    const ScreenContext screen;
    GetDIBits(screen.get(), source, 0, static_cast<UINT>(height), bits.pixels.data(), &info, DIB_RGB_COLORS);
    return bits;
}

/// The colours of an icon with its alpha, or with its mask where it has no alpha; without pixels where the
/// icon has no colours.
Bitmap pixelsOfIcon(HICON icon) {
    ICONINFO parts{};
    if (GetIconInfo(icon, &parts) == FALSE)
        return {};
    const OwnedBitmap ownedColor(parts.hbmColor);
    const OwnedBitmap ownedMask(parts.hbmMask);
    BITMAP size{};
    Bitmap colors;
    Bitmap mask;
    if (ownedColor && GetObjectW(ownedColor.get(), sizeof size, &size) != 0) {
        colors = bitsOf(ownedColor.get(), size.bmWidth, size.bmHeight);
        mask = bitsOf(ownedMask.get(), size.bmWidth, size.bmHeight);
    }
    const bool hasAlpha = std::any_of(
        colors.pixels.begin(), colors.pixels.end(), [](std::uint32_t pixel) { return pixel >> 24U != 0; });
    for (std::size_t i = 0; i < colors.pixels.size(); ++i) {
        const bool hidden = (mask.pixels[i] & 0xFFFFFFU) != 0;
        const std::uint32_t alpha = hasAlpha ? colors.pixels[i] >> 24U : (hidden ? 0U : 255U);
        colors.pixels[i] = premultiplied(colors.pixels[i], alpha);
    }
    return colors;
}

Bitmap pixelsOfPicture(IPicture* picture, short type) {
    constexpr Long largestSide = 32767;
    OLE_HANDLE handle = 0;
    if (type == PICTYPE_ICON && SUCCEEDED(picture->get_Handle(&handle))) {
        Bitmap icon = pixelsOfIcon(static_cast<HICON>(handleOf(handle)));
        if (!icon.pixels.empty())
            return icon;
    }
    const SIZE size = pixelSizeOf(picture, type);
    if (size.cx <= 0 || size.cy <= 0 || size.cx > largestSide || size.cy > largestSide)
        return {};
    const MemoryBitmap black(size.cx, size.cy);
    const MemoryBitmap white(size.cx, size.cy);
    renderOver(picture, black, BLACKNESS);
    renderOver(picture, white, WHITENESS);
    Bitmap bitmap(size.cx, size.cy);
    for (Long y = 0; y < bitmap.height; ++y) {
        for (Long x = 0; x < bitmap.width; ++x)
            bitmap.at(x, y) = pixelFrom(black.row(y)[x], white.row(y)[x]);
    }
    return bitmap;
}

/// A host's picture object. Its pixels are taken when they are first asked for, so that a million cells may
/// share a picture that is never shown.
class OlePicture final : public Picture {
  public:
    explicit OlePicture(ComRef<IPicture> picture)
        : picture_(std::move(picture)), identity_(queryFor<IUnknown>(picture_.get())) {
        if (FAILED(picture_->get_Type(&type_)))
            type_ = PICTYPE_NONE;
    }
    ~OlePicture() override { pairs().forget(identity_.get(), this); }
    OlePicture(const OlePicture&) = delete;
    OlePicture& operator=(const OlePicture&) = delete;

    Long Width() const override {
        OLE_XSIZE_HIMETRIC width = 0;
        return SUCCEEDED(picture_->get_Width(&width)) ? width : 0;
    }
    Long Height() const override {
        OLE_YSIZE_HIMETRIC height = 0;
        return SUCCEEDED(picture_->get_Height(&height)) ? height : 0;
    }
    const Bitmap& bitmap() const override {
        if (!bitmap_)
            bitmap_ = pixelsOfPicture(picture_.get(), type_);
        return *bitmap_;
    }
    PictureKind kind() const override { return type_ == PICTYPE_ICON ? PictureKind::icon : kindOf(bitmap()); }

    IPicture* object() const { return picture_.get(); }
    IUnknown* identity() const { return identity_.get(); }

  private:
    ComRef<IPicture> picture_;
    ComRef<IUnknown> identity_;
    short type_ = PICTYPE_NONE;
    mutable std::optional<Bitmap> bitmap_;
};

PictureRef entered(ComRef<IPicture> picture) {
    auto made = std::make_shared<OlePicture>(std::move(picture));
    pairs().enterOurs(made->identity(), made);
    return made;
}

/// A bitmap of the system with these bits; rows from the top, `bits` per pixel.
OwnedBitmap sectionFor(const Bitmap& bitmap, WORD bits, void*& memory) {
    const BITMAPINFO info = dibInfo(bitmap.width, -bitmap.height, bits);
    OwnedBitmap made(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &memory, nullptr, 0));
    if (!made)
        throw RuntimeError(ErrorNumber::outOfMemory);
    return made;
}

/// 24 bits per pixel: a fourth byte would be taken for alpha by some.
OwnedBitmap opaqueBitmap(const Bitmap& bitmap) {
    void* memory = nullptr;
    OwnedBitmap made = sectionFor(bitmap, 24, memory);
    const std::uint64_t stride = dibStride(bitmap.width, 24);
    for (Long y = 0; y < bitmap.height; ++y) {
        Byte* byte = static_cast<Byte*>(memory) + stride * static_cast<std::size_t>(y);
        for (Long x = 0; x < bitmap.width; ++x) {
            for (unsigned shift = 0; shift < 24; shift += 8)
                *byte++ = static_cast<Byte>(bitmap.at(x, y) >> shift);
        }
    }
    return made;
}

OwnedIcon iconFor(const Bitmap& bitmap) {
    void* memory = nullptr;
    const OwnedBitmap color = sectionFor(bitmap, 32, memory);
    std::transform(bitmap.pixels.begin(), bitmap.pixels.end(), static_cast<std::uint32_t*>(memory), straight);
    const std::vector<Byte> hidden = maskRows(bitmap, 16);
    const OwnedBitmap mask(CreateBitmap(bitmap.width, bitmap.height, 1, 1, hidden.data()));
    ICONINFO parts{TRUE, 0, 0, mask.get(), color.get()};
    OwnedIcon icon(mask ? CreateIconIndirect(&parts) : nullptr);
    if (!icon)
        throw RuntimeError(ErrorNumber::outOfMemory);
    return icon;
}

ComRef<IPictureDisp> makeObject(const Picture& picture) {
    PICTDESC description{};
    description.cbSizeofstruct = sizeof description;
    OwnedIcon icon;
    OwnedBitmap bitmap;
    if (picture.kind() == PictureKind::icon) {
        icon = iconFor(picture.bitmap());
        description.picType = PICTYPE_ICON;
        description.icon.hicon = icon.get();
    } else {
        bitmap = opaqueBitmap(picture.bitmap());
        description.picType = PICTYPE_BITMAP;
        description.bmp.hbitmap = bitmap.get();
    }
    void* made = nullptr;
    if (FAILED(OleCreatePictureIndirect(&description, IID_IPictureDisp, TRUE, &made)))
        throw RuntimeError(ErrorNumber::outOfMemory);
    // The object owns it now.
    icon.detach();
    bitmap.detach();
    return ComRef<IPictureDisp>::adopting(static_cast<IPictureDisp*>(made));
}

} // namespace

PictureRef pictureFrom(IPictureDisp* picture) {
    const ComRef<IUnknown> identity = queryFor<IUnknown>(picture);
    if (!identity)
        return nullptr;
    if (PictureRef known = pairs().oursFor(identity.get()))
        return known;
    ComRef<IPicture> content = queryFor<IPicture>(picture);
    return content ? entered(std::move(content)) : nullptr;
}

ComRef<IPictureDisp> toIPicture(const PictureRef& picture) {
    if (!picture)
        return {};
    if (IPicture* hosts = hostsPicture(*picture))
        return queryFor<IPictureDisp>(hosts);
    if (picture->bitmap().pixels.empty())
        return {};
    if (ComRef<IPictureDisp> known = pairs().theirsFor(picture.get()))
        return known;
    ComRef<IPictureDisp> made = makeObject(*picture);
    const ComRef<IUnknown> identity = made.as<IUnknown>();
    // The sink belongs to the object and ends with it; it keeps the picture alive for the host.
    const ComRef<PropertySink> sink =
        PropertySink::make({}, [picture, object = identity.get()] { pairs().forget(object, picture.get()); });
    DWORD cookie = 0;
    if (sink->listenTo(made.get(), cookie)) {
        pairs().enterOurs(identity.get(), picture);
        pairs().enterTheirs(picture.get(), made.get());
    }
    return made;
}

IPicture* hostsPicture(const Picture& picture) {
    const auto* hosts = dynamic_cast<const OlePicture*>(&picture);
    return hosts != nullptr ? hosts->object() : nullptr;
}

PictureRef loadOlePicture(std::span<const Byte> image, std::uint64_t freePixels) {
    if (image.size() > 0x7FFFFFFF)
        throw RuntimeError(ErrorNumber::invalidPicture);
    // The system's loader believes whatever an image says of itself.
    checkImage(image, freePixels);
    OwnedMemory memory(GlobalAlloc(GMEM_MOVEABLE, image.size()));
    ComRef<IStream> stream;
    if (!memory || FAILED(CreateStreamOnHGlobal(memory.get(), TRUE, stream.out())))
        throw RuntimeError(ErrorNumber::outOfMemory);
    const HGLOBAL streams = memory.detach();
    std::copy(image.begin(), image.end(), static_cast<Byte*>(LockedMemory(streams).bytes()));
    void* made = nullptr;
    if (FAILED(OleLoadPicture(stream.get(), static_cast<LONG>(image.size()), FALSE, IID_IPicture, &made)))
        throw RuntimeError(ErrorNumber::invalidPicture);
    PictureRef picture = entered(ComRef<IPicture>::adopting(static_cast<IPicture*>(made)));
    if (picture->bitmap().pixels.empty())
        throw RuntimeError(ErrorNumber::invalidPicture);
    return picture;
}

} // namespace lumtex::win32
