#include "bars/scroll_artwork.h"

#include "values/runtime_error.h"

#include <span>
#include <string_view>
#include <utility>

namespace lumtex::bars {

namespace {

/// 0xRRGGBB.
using Color = std::uint32_t;

/// The colours of one look in one scheme.
struct Look {
    Color faceLight; ///< where the run over a face begins
    Color faceDark;  ///< where it ends
    Color chevron;
    Color gripLight;
    Color gripDark;
};

/// The edges of a button.
struct Frame {
    Color top;
    Color side;
    Color bottom;
    Color shadow;
    Color corner; ///< softens the shadow's ends
};

struct Scheme {
    Look normal;
    Look hover;
    Look pressed;
    Frame frame;
    Frame hoverFrame;
};

/// Beside a button, and where its corners are cut: the first column of the trough.
constexpr Color margin = 0xEEEDE5;

// clang-format off
constexpr std::array<Scheme, 3> schemes{{
    // blue
    {{0xD0DDFD, 0xB6C8F4, 0x4D6185, 0xEEF4FE, 0x8CA7E3},
     {0xE6EFFF, 0xCCDDFD, 0x3C5A96, 0xFFFFFF, 0x9AB6F0},
     {0xA6BCF2, 0x8DA9EA, 0x26385C, 0xCFDDFD, 0x6C8AD0},
     {0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0x7C9FD3, 0x9AB5DC},
     {0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0x7C9FD3, 0x9AB5DC}},
    // silver
    {{0xF4F4F7, 0xD3D4DF, 0x54565F, 0xFFFFFF, 0x9FA0AE},
     {0xFFFFFF, 0xE6E7EF, 0x3A3C44, 0xFFFFFF, 0x9FA0AE},
     {0xBDBECB, 0xD4D5DE, 0x2B2C33, 0xEAEAF0, 0x85869A},
     {0xB7B7BF, 0x9495A2, 0xD0D1DF, 0x9D9EAC, 0x8B8C9A},
     {0x5B6665, 0x5B6665, 0xD0D1DF, 0x5B6665, 0x8B8C9A}},
    // olive
    {{0xD1DCB9, 0xB5C592, 0x4F5D31, 0xEDF3DE, 0x8FA065},
     {0xE2EAD0, 0xC9D7AC, 0x44552A, 0xFAFCF4, 0xA0B077},
     {0xA9BA84, 0x97A970, 0x323D1B, 0xD3DEBC, 0x75864C},
     {0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0x829061, 0x8F9975},
     {0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0x829061, 0x8F9975}},
}};
// clang-format on

constexpr Look disabledLook{0xF7F6F0, 0xF1F0E8, 0xC6C4B6, 0, 0};
constexpr Frame disabledFrame{0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xDDDBCF, 0xE6E4DA};

using Rows = std::span<const std::string_view>;

// The drawings, a letter a pixel. m: margin; t, l, b: the frame's top, sides and bottom; s, k: its shadow and
// the shadow's ends; f: face; x: chevron; i, d: the lit and the shaded side of a grip; a dot: nothing.

/// A button of a vertical bar: the margin is at the left, as it is beside the thumb.
constexpr std::array<std::string_view, 17> uprightButton = {
    "mtttttttttttttttt",
    "mlffffffffffffffl",
    "mlffffffffffffffl",
    "mlffffffffffffffl",
    "mlffffffffffffffl",
    "mlffffffffffffffl",
    "mlffffffffffffffl",
    "mlffffffffffffffl",
    "mlffffffffffffffl",
    "mlffffffffffffffl",
    "mlffffffffffffffl",
    "mlffffffffffffffl",
    "mlffffffffffffffl",
    "mlffffffffffffffl",
    "mlffffffffffffffl",
    "mkbbbbbbbbbbbbbbk",
    "mmksssssssssssskm",
};

/// A button of a horizontal bar: the margin is above.
constexpr std::array<std::string_view, 17> levelButton = {
    "mmmmmmmmmmmmmmmmm",
    "ttttttttttttttttt",
    "lfffffffffffffffl",
    "lfffffffffffffffl",
    "lfffffffffffffffl",
    "lfffffffffffffffl",
    "lfffffffffffffffl",
    "lfffffffffffffffl",
    "lfffffffffffffffl",
    "lfffffffffffffffl",
    "lfffffffffffffffl",
    "lfffffffffffffffl",
    "lfffffffffffffffl",
    "lfffffffffffffffl",
    "lfffffffffffffffl",
    "kbbbbbbbbbbbbbbbk",
    "mkssssssssssssskm",
};

struct Chevron {
    std::array<std::string_view, 9> rows; ///< the last ones may be empty
    Long x;                               ///< pixels of the button
    Long y;
};

/// By Arrow.
constexpr std::array<Chevron, 4> chevrons{{
    {{"...xx...", //
      "..xxxx..",
      ".xxxxxx.",
      "xxx..xxx",
      "xx....xx"},
     5,
     5},
    {{"xx....xx", //
      "xxx..xxx",
      ".xxxxxx.",
      "..xxxx..",
      "...xx..."},
     5,
     6},
    {{"....x", //
      "...xx",
      "..xxx",
      ".xxx.",
      "xxx..",
      ".xxx.",
      "..xxx",
      "...xx",
      "....x"},
     6,
     4},
    {{"x....", //
      "xx...",
      "xxx..",
      ".xxx.",
      "..xxx",
      ".xxx.",
      "xxx..",
      "xx...",
      "x...."},
     6,
     4},
}};

/// Ridges across the bar. By Axis.
constexpr std::array<std::string_view, 7> uprightGrip = {
    "iiiiiii.",
    ".ddddddd",
    "iiiiiii.",
    ".ddddddd",
    "iiiiiii.",
    ".ddddddd",
    "iiiiiii.",
};
constexpr std::array<std::string_view, 8> levelGrip = {
    "i.i.i.i",
    "idididi",
    "idididi",
    "idididi",
    "idididi",
    "idididi",
    "idididi",
    ".d.d.d.",
};

constexpr Color opaque = 0xFF000000U;

/// The colour `step` of `last` steps on the way between two.
constexpr Color between(Color from, Color to, Long step, Long last) {
    Color mixed = 0;
    for (unsigned shift = 0; shift <= 16; shift += 8) {
        const auto a = static_cast<Long>((from >> shift) & 0xFFU);
        const auto b = static_cast<Long>((to >> shift) & 0xFFU);
        mixed |= static_cast<Color>((a * (last - step) + b * step + last / 2) / last) << shift;
    }
    return mixed;
}

/// The colour of a letter; 0, which is transparent, for any other one. `step` of `last` is the place on the
/// face's run.
Color colorOf(char letter, const Look& look, const Frame& frame, Long step, Long last) {
    switch (letter) {
    case 'm':
        return opaque | margin;
    case 't':
        return opaque | frame.top;
    case 'l':
        return opaque | frame.side;
    case 'b':
        return opaque | frame.bottom;
    case 's':
        return opaque | frame.shadow;
    case 'k':
        return opaque | frame.corner;
    case 'f':
        return opaque | between(look.faceLight, look.faceDark, step, last);
    case 'x':
        return opaque | look.chevron;
    case 'i':
        return opaque | look.gripLight;
    case 'd':
        return opaque | look.gripDark;
    default:
        return 0;
    }
}

/// Draws over what is there; a face runs from left to right, or from top to bottom where it `falls`.
void draw(Bitmap& bitmap, Rows rows, Point at, const Look& look, const Frame& frame, bool falls) {
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t column = 0; column < rows[row].size(); ++column) {
            const Long x = at.x + static_cast<Long>(column);
            const Long y = at.y + static_cast<Long>(row);
            const Long last = (falls ? bitmap.height : bitmap.width) - 1;
            if (const Color color = colorOf(rows[row][column], look, frame, falls ? y : x, last); color != 0)
                bitmap.at(x, y) = color;
        }
    }
}

PictureRef button(Arrow arrow, const Look& look, const Frame& frame) {
    const bool level = arrow == Arrow::left || arrow == Arrow::right;
    const Rows rows = level ? Rows(levelButton) : Rows(uprightButton);
    Bitmap bitmap(static_cast<Long>(rows.front().size()), static_cast<Long>(rows.size()));
    draw(bitmap, rows, {0, 0}, look, frame, level);
    const Chevron& chevron = chevrons[static_cast<std::size_t>(arrow)];
    draw(bitmap, chevron.rows, {chevron.x, chevron.y}, look, frame, level);
    return std::make_shared<PixelArt>(std::move(bitmap));
}

/// Only the first row of a body is ever seen, pulled over the whole thumb, so that all rows are the same.
PictureRef body(Axis axis, const Look& look) {
    const Long width = axis == Axis::vertical ? 14 : 13;
    const Long height = axis == Axis::vertical ? 13 : 14;
    Bitmap bitmap(width, height);
    for (Long y = 0; y < height; ++y) {
        for (Long x = 0; x < width; ++x)
            bitmap.at(x, y) = opaque | between(look.faceLight, look.faceDark, x, width - 1);
    }
    return std::make_shared<PixelArt>(std::move(bitmap));
}

PictureRef grip(Axis axis, const Look& look) {
    const Rows rows = axis == Axis::vertical ? Rows(uprightGrip) : Rows(levelGrip);
    Bitmap bitmap(static_cast<Long>(rows.front().size()), static_cast<Long>(rows.size()));
    draw(bitmap, rows, {0, 0}, look, {}, false);
    return std::make_shared<PixelArt>(std::move(bitmap));
}

ScrollArtwork drawAll() {
    ScrollArtwork artwork;
    for (std::size_t style = 0; style < schemes.size(); ++style) {
        const Scheme& scheme = schemes[style];
        for (const Axis axis : {Axis::vertical, Axis::horizontal}) {
            ThumbArtwork& img = artwork.thumbs[static_cast<std::size_t>(axis)];
            const std::size_t base = style * thumbPictures;
            for (const auto& [place, look] : {std::pair(ThumbLook::pressed, &scheme.pressed),
                                              std::pair(ThumbLook::hover, &scheme.hover),
                                              std::pair(ThumbLook::normal, &scheme.normal)}) {
                img[base + static_cast<std::size_t>(place)] = body(axis, *look);
                img[base + static_cast<std::size_t>(place) + gripAfterBody] = grip(axis, *look);
            }
        }
        for (const Arrow arrow : {Arrow::up, Arrow::down, Arrow::left, Arrow::right}) {
            ButtonArtwork& img = artwork.buttons[static_cast<std::size_t>(arrow)];
            const std::size_t base = style * buttonPictures;
            const auto put = [&](ButtonLook place, const Look& look, const Frame& frame) {
                img[base + static_cast<std::size_t>(place)] = button(arrow, look, frame);
            };
            put(ButtonLook::normal, scheme.normal, scheme.frame);
            put(ButtonLook::hover, scheme.hover, scheme.hoverFrame);
            put(ButtonLook::pressed, scheme.pressed, scheme.hoverFrame);
            put(ButtonLook::disabled, disabledLook, disabledFrame);
        }
    }
    return artwork;
}

} // namespace

const ScrollArtwork& ScrollArtwork::standard() {
    static const ScrollArtwork artwork = drawAll();
    return artwork;
}

const Picture& pictureAt(std::span<const PictureRef> img, Double index) {
    if (!(index >= 1 && index < static_cast<Double>(img.size())))
        throw RuntimeError(ErrorNumber::subscriptOutOfRange);
    return *img[static_cast<std::size_t>(index)];
}

} // namespace lumtex::bars
