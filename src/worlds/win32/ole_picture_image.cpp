#include "worlds/win32/ole_picture_image.h"

#include "values/image_check.h"
#include "worlds/win32/ole_picture.h"
#include "worlds/win32/owned.h"

namespace lumtex::win32 {

namespace {

constexpr unsigned mostColors = 256;
constexpr std::size_t largestFile = 0x7FFF0000; // so that a Long counts it with its header

/// A header with room for the colours of any palette.
struct HeaderWithColors {
    BITMAPINFOHEADER header{};
    RGBQUAD colors[mostColors]{};

    BITMAPINFO& info() { return *reinterpret_cast<BITMAPINFO*>(&header); }
};

template <class T>
void append(std::vector<Byte>& bytes, const T* from, std::size_t count) {
    const auto* const first = reinterpret_cast<const Byte*>(from);
    bytes.insert(bytes.end(), first, first + count * sizeof(T));
}

/// Six bits of green have no place in the 16 of a plain bitmap file.
bool hasWideGreen(HBITMAP bitmap) {
    constexpr DWORD wideGreen = 0x7E0;
    DIBSECTION section{};
    return GetObjectW(bitmap, sizeof section, &section) == sizeof section &&
           section.dsBitfields[1] == wideGreen;
}

WORD depthOf(HBITMAP bitmap, const BITMAP& size) {
    const int bits = size.bmBitsPixel * size.bmPlanes;
    for (const WORD depth : {WORD{1}, WORD{4}, WORD{8}, WORD{16}, WORD{24}})
        if (bits <= depth && (depth != 16 || !hasWideGreen(bitmap)))
            return depth;
    return 32;
}

/// Uncompressed, the lines from below. No bytes where the system does not give them.
std::vector<Byte> fileOfBitmap(HBITMAP bitmap) {
    BITMAP size{};
    if (GetObjectW(bitmap, sizeof size, &size) == 0)
        return {};
    HeaderWithColors lines;
    lines.header.biSize = sizeof lines.header;
    lines.header.biWidth = size.bmWidth;
    lines.header.biHeight = size.bmHeight;
    lines.header.biPlanes = 1;
    lines.header.biBitCount = depthOf(bitmap, size);
    const std::size_t lineSize =
        (static_cast<std::size_t>(size.bmWidth) * lines.header.biBitCount + 31) / 32 * 4;
    if (lineSize > largestFile / static_cast<std::size_t>(size.bmHeight))
        return {};
    std::vector<Byte> data(lineSize * static_cast<std::size_t>(size.bmHeight));
    const ScreenContext screen;
    const auto count = static_cast<UINT>(size.bmHeight);
    if (GetDIBits(screen.get(), bitmap, 0, count, data.data(), &lines.info(), DIB_RGB_COLORS) == 0)
        return {};
    const std::size_t colors = lines.header.biBitCount <= 8 ? std::size_t{1} << lines.header.biBitCount : 0;
    lines.header.biSizeImage = static_cast<DWORD>(data.size());
    lines.header.biClrUsed = static_cast<DWORD>(colors);
    lines.header.biClrImportant = 0;
    BITMAPFILEHEADER file{};
    file.bfType = 0x4D42; // "BM"
    file.bfOffBits = static_cast<DWORD>(sizeof file + sizeof lines.header + colors * sizeof(RGBQUAD));
    file.bfSize = file.bfOffBits + lines.header.biSizeImage;
    std::vector<Byte> image;
    image.reserve(file.bfSize);
    append(image, &file, 1);
    append(image, &lines.header, 1);
    append(image, lines.colors, colors);
    append(image, data.data(), data.size());
    return image;
}

bool holds(const std::vector<Byte>& image, ImageFormat format) {
    return isSoundImage(image) && checkImage(image) == format;
}

} // namespace

std::vector<Byte> fileOfPicture(IPicture& picture) {
    ComRef<IStream> stream;
    if (FAILED(CreateStreamOnHGlobal(nullptr, TRUE, stream.out())))
        return {};
    LONG size = 0;
    if (FAILED(picture.SaveAsFile(stream.get(), TRUE, &size)))
        return {};
    STATSTG told{};
    HGLOBAL memory = nullptr;
    if (FAILED(stream->Stat(&told, STATFLAG_NONAME)) || FAILED(GetHGlobalFromStream(stream.get(), &memory)))
        return {};
    const LockedMemory locked(memory);
    const auto* const bytes = static_cast<const Byte*>(locked.bytes());
    if (bytes == nullptr)
        return {};
    return {bytes, bytes + static_cast<std::size_t>(told.cbSize.QuadPart)};
}

std::vector<Byte> imageOfHostsPicture(const Picture& picture) {
    IPicture* const object = hostsPicture(picture);
    if (object == nullptr)
        return {};
    short type = PICTYPE_NONE;
    object->get_Type(&type);
    if (type == PICTYPE_ICON) {
        std::vector<Byte> image = fileOfPicture(*object);
        return holds(image, ImageFormat::icon) ? image : std::vector<Byte>();
    }
    // A bitmap file has no room for what shines through.
    if (type != PICTYPE_BITMAP || picture.kind() != PictureKind::bitmap)
        return {};
    std::vector<Byte> image = fileOfPicture(*object);
    if (holds(image, ImageFormat::bitmap))
        return image;
    OLE_HANDLE handle = 0;
    if (FAILED(object->get_Handle(&handle)))
        return {};
    // Handles of drawing objects have 32 significant bits, extended by their sign.
    return fileOfBitmap(reinterpret_cast<HBITMAP>(static_cast<INT_PTR>(static_cast<int>(handle))));
}

} // namespace lumtex::win32
