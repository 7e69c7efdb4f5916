#include "icons.h"

#include <array>
#include <string_view>

namespace lumtex::gallery {

namespace {

using Rows = std::array<std::string_view, 16>;

constexpr std::uint32_t colorOf(char letter) {
    switch (letter) {
    case 'b':
        return 0xFF8A6A1FU; // brown outline
    case 'y':
        return 0xFFFBE08AU; // light yellow
    case 'o':
        return 0xFFF0C24BU; // deep yellow
    case 'g':
        return 0xFF7A8794U; // grey outline
    case 'w':
        return 0xFFFFFFFFU;
    case 'l':
        return 0xFFB9C6D3U; // lines of text
    case 'f':
        return 0xFFDCE5EEU; // folded corner
    default:
        return 0;
    }
}

PictureRef draw(const Rows& rows) {
    Bitmap bitmap(16, 16);
    for (Long y = 0; y < 16; ++y) {
        for (Long x = 0; x < 16; ++x)
            bitmap.at(x, y) = colorOf(rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]);
    }
    return std::make_shared<BitmapPicture>(std::move(bitmap));
}

// clang-format off
constexpr Rows folder{
    "................",
    "................",
    "..bbbbb.........",
    ".byyyyyb........",
    ".byyyyyybbbbbb..",
    ".byyyyyyyyyyyyb.",
    ".booooooooooooob",
    ".boyyyyyyyyyyyob",
    ".boyyyyyyyyyyyob",
    ".boyyyyyyyyyyyob",
    ".boyyyyyyyyyyyob",
    ".boyyyyyyyyyyyob",
    ".booooooooooooob",
    ".bbbbbbbbbbbbbbb",
    "................",
    "................",
};

constexpr Rows document{
    "................",
    "...ggggggg......",
    "...gwwwwwgg.....",
    "...gwwwwwgfg....",
    "...gwwwwwgffg...",
    "...gwwwwwggggg..",
    "...gwlllwwwwwg..",
    "...gwwwwwwwwwg..",
    "...gwlllllllwg..",
    "...gwwwwwwwwwg..",
    "...gwlllllllwg..",
    "...gwwwwwwwwwg..",
    "...gwlllllwwwg..",
    "...gwwwwwwwwwg..",
    "...ggggggggggg..",
    "................",
};
// clang-format on

} // namespace

PictureRef folderIcon() {
    static const PictureRef icon = draw(folder);
    return icon;
}

PictureRef documentIcon() {
    static const PictureRef icon = draw(document);
    return icon;
}

} // namespace lumtex::gallery
