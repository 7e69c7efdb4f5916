#include "drawing/artwork.h"

#include <array>
#include <span>
#include <string_view>

namespace lumtex::drawing {

namespace {

/// Colours by letter, 0xRRGGBB; a letter that is not there is transparent.
struct Ink {
    char letter;
    std::uint32_t color;
};

using Rows = std::span<const std::string_view>;

PictureRef draw(Rows rows, std::span<const Ink> inks) {
    Bitmap bitmap(static_cast<Long>(rows.front().size()), static_cast<Long>(rows.size()));
    for (std::size_t y = 0; y < rows.size(); ++y) {
        for (std::size_t x = 0; x < rows[y].size(); ++x) {
            for (const Ink& ink : inks) {
                if (ink.letter == rows[y][x])
                    bitmap.at(static_cast<Long>(x), static_cast<Long>(y)) = 0xFF000000U | ink.color;
            }
        }
    }
    return std::make_shared<PixelArt>(std::move(bitmap));
}

PictureRef drawPixels(Long width, std::span<const std::uint32_t> colors) {
    Bitmap bitmap(width, static_cast<Long>(colors.size()) / width);
    for (std::size_t i = 0; i < colors.size(); ++i)
        bitmap.pixels[i] = 0xFF000000U | colors[i];
    return std::make_shared<PixelArt>(std::move(bitmap));
}

// clang-format off
constexpr std::string_view uncheckedRows[] = {
    "0000000000000",
    "0111112335560",
    "0111223456670",
    "0112234566670",
    "0123344667880",
    "0123456676880",
    "0334466688880",
    "0345667688990",
    "0356668888990",
    "0566787889990",
    "0566888899990",
    "0678788999990",
    "0000000000000",
};
constexpr Ink uncheckedInks[] = {
    {'0', 0x185284}, {'1', 0xDEDED6}, {'2', 0xDEDEDE}, {'3', 0xE7E7DE}, {'4', 0xE7E7E7},
    {'5', 0xEFEFE7}, {'6', 0xEFEFEF}, {'7', 0xF7F7EF}, {'8', 0xF7F7F7}, {'9', 0xFFFFFF},
};

constexpr std::string_view checkedRows[] = {
    "0000000000000",
    "0222222344560",
    "0222233445650",
    "0222333551670",
    "0223334511770",
    "0221355111770",
    "0231151117780",
    "0341111177870",
    "0445111778880",
    "0456517787880",
    "0565777888880",
    "0667778878880",
    "0000000000000",
};
constexpr Ink checkedInks[] = {
    {'0', 0x185284}, {'1', 0x21A521}, {'2', 0xE7E7DE}, {'3', 0xE7E7E7}, {'4', 0xEFEFE7},
    {'5', 0xEFEFEF}, {'6', 0xF7F7EF}, {'7', 0xF7F7F7}, {'8', 0xFFFFFF},
};

constexpr std::string_view disabledUncheckedRows[] = {
    "0000000000000",
    "0111111111110",
    "0111111111110",
    "0111111111110",
    "0111111111110",
    "0111111111110",
    "0111111111110",
    "0111111111110",
    "0111111111110",
    "0111111111110",
    "0111111111110",
    "0111111111110",
    "0000000000000",
};
constexpr std::string_view disabledCheckedRows[] = {
    "0000000000000",
    "0111111111110",
    "0111111111110",
    "0111111110110",
    "0111111100110",
    "0110111000110",
    "0110010001110",
    "0110000011110",
    "0111000111110",
    "0111101111110",
    "0111111111110",
    "0111111111110",
    "0000000000000",
};
constexpr Ink disabledInks[] = {{'0', 0xCECEBD}, {'1', 0xFFFFFF}};

/// The orange bar with rounded ends, cut into left cap, two stamps, right cap.
constexpr std::uint32_t leftCap[] = {
    0xF9CC68, 0xFAD587, 0xFCDF9D, 0xFBCF70, 0xFAC042, 0xFCB825,
    0xF2E0B5, 0xFBBA2F, 0xFCE0A6, 0xFAE4B2, 0xFADC9C, 0xFCD685,
    0xECE9D8, 0xEFE2C4, 0xF5CC71, 0xFBC553, 0xFABC39, 0xFBB521,
};
constexpr std::uint32_t firstStamp[] = {0xFAAD08, 0xF9C654, 0xFAB117};
constexpr std::uint32_t secondStamp[] = {0xFAAB00, 0xFCC247, 0xFAB218};
constexpr std::uint32_t rightCap[] = {
    0xFAAA00, 0xF4A700, 0xF2A400, 0xF0A400, 0xE89E00, 0xE29A00, 0xDE9600, 0xE4C784,
    0xF9BC3B, 0xF2B83A, 0xEDA710, 0xE89F00, 0xDF9700, 0xDD9600, 0xE5A010, 0xECE9D8,
    0xF4AD14, 0xECA614, 0xE39C05, 0xDD9600, 0xDA9D1A, 0xDFBE71, 0xECE9D8, 0xECE9D8,
};

/// Two bars with an arrow to each side; the hot spot is the middle.
constexpr std::string_view resizeRows[] = {
    "................................",
    "................................",
    "................................",
    "................................",
    "................................",
    "................................",
    "................................",
    ".............oooooo.............",
    ".............oxooxo.............",
    ".............oxooxo.............",
    ".............oxooxo.............",
    ".......oo....oxooxo....oo.......",
    "......oxo....oxooxo....oxo......",
    ".....oxxo....oxooxo....oxxo.....",
    "....oxxxoooooxooooxoooooxxxo....",
    "...oxxxxxxxxoxooooxoxxxxxxxxo...",
    "...oxxxxxxxxoxooooxoxxxxxxxxo...",
    "....oxxxoooooxooooxoooooxxxo....",
    ".....oxxo....oxooxo....oxxo.....",
    "......oxo....oxooxo....oxo......",
    ".......oo....oxooxo....oo.......",
    ".............oxooxo.............",
    ".............oxooxo.............",
    ".............oxooxo.............",
    ".............oooooo.............",
    "................................",
    "................................",
    "................................",
    "................................",
    "................................",
    "................................",
    "................................",
};
constexpr Ink resizeInks[] = {{'x', 0x000000}, {'o', 0xFFFFFF}};
// clang-format on

PictureRef sideBySide(std::span<const PictureRef> pieces) {
    Long width = 0;
    for (const PictureRef& piece : pieces)
        width += piece->bitmap().width;
    Bitmap strip(width, pieces.front()->bitmap().height);
    Long left = 0;
    for (const PictureRef& piece : pieces) {
        const Bitmap& pixels = piece->bitmap();
        for (Long y = 0; y < pixels.height; ++y) {
            for (Long x = 0; x < pixels.width; ++x)
                strip.at(left + x, y) = pixels.at(x, y);
        }
        left += pixels.width;
    }
    return std::make_shared<PixelArt>(std::move(strip));
}

ListViewArtwork drawAll() {
    ListViewArtwork artwork;
    artwork.img = {nullptr, draw(uncheckedRows, uncheckedInks), draw(checkedRows, checkedInks)};
    artwork.imgd = {
        nullptr, draw(disabledUncheckedRows, disabledInks), draw(disabledCheckedRows, disabledInks)};
    artwork.imgCol = {drawPixels(6, leftCap),
                      drawPixels(1, firstStamp),
                      drawPixels(1, secondStamp),
                      drawPixels(8, rightCap)};
    artwork.imgDefault = sideBySide(artwork.imgCol);
    artwork.imgResize = draw(resizeRows, resizeInks);
    return artwork;
}

} // namespace

const ListViewArtwork& ListViewArtwork::standard() {
    static const ListViewArtwork artwork = drawAll();
    return artwork;
}

} // namespace lumtex::drawing
