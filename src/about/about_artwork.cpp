#include "about/about_artwork.h"

#include "about/shape_painter.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <tuple>
#include <utility>

namespace lumtex::about {

namespace {

// All sizes are pixels, but for those of letters.
constexpr Long formWidth = 460;
constexpr Long formHeight = 290;
constexpr float footTop = 212; // where the bright foot of the box begins

constexpr Shade plainWhite{255, 255, 255};
constexpr Shade deepBlue{14, 46, 122};
constexpr Shade brightBlue{58, 122, 214};
constexpr Shade paleBlue{158, 196, 245};
constexpr Shade lineBlue{66, 101, 165};
constexpr Shade amber{247, 160, 45};
constexpr Shade footTint{221, 231, 247};

// clang-format off

/// A letter: its strokes, and how far the next one stands, in tenths of the height of a small letter.
struct Letter {
    char name;
    float width;
    std::array<PenStroke, 6> strokes;
    std::size_t count;
};

constexpr Letter letters[] = {
    {'L',  7.5F, {{{0, 15, 0, 0}, {0, 0, 7.5F, 0}}}, 2},
    {'V', 11,    {{{0, 15, 5.5F, 0}, {5.5F, 0, 11, 15}}}, 2},
    {'e',  9,    {{{4.5F, 5, 4.5F, 0, 7}, {0, 5, 9, 5}, {4.5F, 0.5F, 7.8F, 0.8F}}}, 3},
    {'i',  0,    {{{0, 10, 0, 0}, {0, 14.4F, 0, 14.5F}}}, 2},
    {'m', 12,    {{{0, 10, 0, 0}, {3, 7, 3, 0, 3}, {6, 7, 6, 0}, {9, 7, 3, 0, 3}, {12, 7, 12, 0}}}, 5},
    {'s',  6,    {{{2.5F, 7.5F, 2.5F, 0, 6}, {2.5F, 10, 5.6F, 10}, {2.5F, 5, 3.5F, 5},
                   {3.5F, 2.5F, 2.5F, 0, 9}, {0.2F, 0, 3.5F, 0}}}, 5},
    {'t',  5,    {{{1.5F, 14, 1.5F, 3}, {4.5F, 3, 3, 0, 4}, {-1, 10, 5, 10}}}, 3},
    {'u',  7.5F, {{{0, 10, 0, 3.75F}, {3.75F, 3.75F, 3.75F, 0, 12}, {7.5F, 10, 7.5F, 0}}}, 3},
    {'w', 13,    {{{0, 10, 3.2F, 0}, {3.2F, 0, 6.5F, 10}, {6.5F, 10, 9.8F, 0}, {9.8F, 0, 13, 10}}}, 4},
    {'x',  8,    {{{0, 10, 8, 0}, {0, 0, 8, 10}}}, 2},
    {'?',  6,    {{{3, 8, 3, 0, 11}, {3, 5, 3, 3.6F}, {3, 0, 3, 0.1F}}}, 3},
};

constexpr std::string_view handRows[] = {
    ".....##..........",
    "....#oo#.........",
    "....#oo#.........",
    "....#oo#.........",
    "....#oo#.........",
    "....#oo###.......",
    "....#oo#oo###....",
    "....#oo#oo#oo##..",
    ".##.#oo#oo#oo#o#.",
    "#oo##oo#oo#oo#oo#",
    "#ooo#oooooooo#oo#",
    ".#oo#ooooooooooo#",
    "..#ooooooooooooo#",
    "..#ooooooooooooo#",
    "...#ooooooooooo#.",
    "...#ooooooooooo#.",
    "....#ooooooooo#..",
    "....#ooooooooo#..",
    ".....#ooooooo#...",
    ".....#########...",
};

// clang-format on

constexpr float letterGap = 4.2F;

constexpr std::size_t letterIndex(char name) {
    std::size_t index = 0;
    while (index < std::size(letters) && letters[index].name != name)
        ++index;
    return index;
}

constexpr bool hasLetters(std::string_view word) {
    return std::all_of(
        word.begin(), word.end(), [](char name) { return letterIndex(name) < std::size(letters); });
}

constexpr std::string_view firstWord = "Lumtex";
constexpr std::string_view secondWord = "ListView";
constexpr char helpMark = '?';
static_assert(hasLetters(firstWord) && hasLetters(secondWord) && letterIndex(helpMark) < std::size(letters));

const Letter& letter(char name) {
    return letters[letterIndex(name)];
}

std::span<const PenStroke> strokesOf(const Letter& letter) {
    return std::span(letter.strokes).first(letter.count);
}

PictureRef pictureOf(Bitmap bitmap) {
    return std::make_shared<BitmapPicture>(std::move(bitmap));
}

/// Writes `word`; where the next one would stand.
float write(Bitmap& picture, std::string_view word, LetterFrame frame, const Shade& shade, float opacity) {
    for (const char name : word) {
        drawStrokes(picture, strokesOf(letter(name)), frame, shade, opacity);
        frame.left += (letter(name).width + letterGap) * frame.scale;
    }
    return frame.left;
}

/// A broad band of light whose lower edge is a parabola.
void drawWave(Bitmap& picture, float crestX, float crestY, float steepness, float opacity) {
    for (Long y = 0; y < picture.height; ++y) {
        for (Long x = 0; x < picture.width; ++x) {
            const float away = (static_cast<float>(x) - crestX) / 100;
            const float edge = crestY + steepness * away * away;
            const float below = static_cast<float>(y) + 0.5F - edge;
            const float inside = below < 0 ? 0.0F : (below < 1 ? below : 1.0F);
            layOver(picture, x, y, plainWhite, inside * opacity);
        }
    }
}

/// A small list as the control shows one: a header, rows with check marks, one row selected, a bar.
void drawList(Bitmap& picture, float left, float top) {
    constexpr float width = 132;
    constexpr float height = 146;
    constexpr float headerHeight = 20;
    constexpr float rowHeight = 18;
    constexpr float barWidth = 13;
    constexpr float textWidths[][2] = {{34, 20}, {26, 16}, {38, 22}, {30, 14}, {22, 20}, {36, 18}};
    constexpr int selected = 2;
    constexpr Shade headerTop{252, 252, 250};
    constexpr Shade headerFoot{226, 223, 208};
    constexpr Shade tick{33, 161, 33};
    constexpr Shade grey{176, 184, 198};
    constexpr Shade rule{232, 237, 245};

    shadow(picture, {left + 3, top + 5, width, height, 4}, 12, 0.38F);
    fillBox(picture, {left - 1, top - 1, width + 2, height + 2, 4}, lineBlue, deepBlue);
    fillBox(picture, {left, top, width, height, 3}, plainWhite, {246, 249, 254});
    fillBox(picture, {left, top, width - barWidth, headerHeight, 2}, headerTop, headerFoot);
    fillBox(picture, {left, top + headerHeight - 2, width - barWidth, 2, 0}, amber, amber, 0.85F);
    for (const float column : {8.0F, 66.0F, 102.0F}) {
        const float textWidth = column < 100 ? 22 : 11;
        fillBox(picture, {left + column, top + 7, textWidth, 4, 2}, {120, 126, 140}, {120, 126, 140});
    }
    for (const float column : {58.0F, 96.0F})
        fillBox(picture, {left + column, top + 4, 1, headerHeight - 9, 0}, grey, grey);
    for (int row = 0; row < 6; ++row) {
        const float rowTop = top + headerHeight + 3 + static_cast<float>(row) * (rowHeight + 2);
        const bool isSelected = row == selected;
        if (isSelected)
            fillBox(
                picture, {left + 3, rowTop, width - barWidth - 6, rowHeight, 3}, brightBlue, {36, 88, 180});
        else
            fillBox(picture, {left + 3, rowTop + rowHeight, width - barWidth - 6, 1, 0}, rule, rule);
        const Shade ink = isSelected ? plainWhite : Shade{96, 110, 136};
        fillBox(picture, {left + 7, rowTop + 4, 11, 11, 2}, lineBlue, lineBlue);
        fillBox(picture, {left + 8, rowTop + 5, 9, 9, 1}, {236, 240, 246}, plainWhite);
        if (row % 2 == 0) {
            constexpr PenStroke mark[] = {{0, 2, 2, 0}, {2, 0, 5.5F, 5}};
            drawStrokes(picture, mark, {left + 9.7F, rowTop + 12, 1, 1.1F}, tick);
        }
        fillBox(picture, {left + 23, rowTop + 7, textWidths[row][0], 4, 2}, ink, ink, 0.9F);
        fillBox(picture, {left + 66, rowTop + 7, textWidths[row][1], 4, 2}, ink, ink, 0.6F);
        fillBox(picture, {left + 102, rowTop + 7, 11, 4, 2}, ink, ink, 0.45F);
    }
    fillBox(picture, {left + width - barWidth, top, barWidth, height, 3}, {234, 239, 250}, {244, 247, 253});
    fillBox(picture,
            {left + width - barWidth + 1, top + 24, barWidth - 2, 44, 3},
            {200, 216, 252},
            {168, 194, 246});
    for (int groove = 0; groove < 3; ++groove)
        fillBox(picture,
                {left + width - barWidth + 4, top + 42 + static_cast<float>(groove) * 3, barWidth - 8, 1, 0},
                lineBlue,
                lineBlue,
                0.7F);
}

PictureRef drawBackground() {
    constexpr float width = formWidth;
    constexpr float height = formHeight;
    Bitmap picture(formWidth, formHeight, 0xFF000000U);
    fillBox(picture, {0, 0, width, footTop, 0}, brightBlue, deepBlue);
    drawWave(picture, 80, 96, 16, 0.07F);
    drawWave(picture, 330, 138, 7, 0.06F);
    drawWave(picture, 190, 176, -5, 0.05F);
    fillBox(picture, {0, footTop, width, height - footTop, 0}, {250, 252, 255}, footTint);
    fillBox(picture, {0, footTop - 2, width, 3, 0}, amber, amber);
    drawList(picture, 296, 34);
    // A frame in two tones closes the box on every desktop.
    for (const auto& [inset, shade, opacity] :
         {std::tuple{0.0F, deepBlue, 1.0F}, std::tuple{1.0F, plainWhite, 0.28F}}) {
        const float last = inset + 1;
        fillBox(picture, {inset, inset, width - 2 * inset, 1, 0}, shade, shade, opacity);
        fillBox(picture, {inset, height - last, width - 2 * inset, 1, 0}, shade, shade, opacity);
        fillBox(picture, {inset, last, 1, height - 2 * last, 0}, shade, shade, opacity);
        fillBox(picture, {width - last, last, 1, height - 2 * last, 0}, shade, shade, opacity);
    }
    return pictureOf(std::move(picture));
}

PictureRef drawTitle() {
    constexpr float scale = 1.52F;
    constexpr LetterFrame frame{6, 33, scale, 1.9F};
    Bitmap picture(258, 44);
    const LetterFrame cast{frame.left + 1, frame.baseLine + 2, scale, frame.halfWidth};
    const float castNext = write(picture, firstWord, cast, deepBlue, 0.55F);
    write(picture, secondWord, {castNext, cast.baseLine, scale, cast.halfWidth}, deepBlue, 0.55F);
    const float next = write(picture, firstWord, frame, plainWhite, 1);
    write(picture, secondWord, {next, frame.baseLine, scale, frame.halfWidth}, paleBlue, 1);
    return pictureOf(std::move(picture));
}

PictureRef drawHelp() {
    constexpr float size = 28;
    Bitmap picture(28, 28);
    fillBox(picture, {0.5F, 0.5F, size - 1, size - 1, size / 2 - 0.5F}, lineBlue, deepBlue);
    fillBox(picture, {2, 2, size - 4, size - 4, size / 2 - 2}, paleBlue, brightBlue);
    fillBox(picture, {3, 3, size - 6, size - 6, size / 2 - 3}, brightBlue, {36, 88, 180});
    fillBox(picture, {5.5F, 4, size - 11, 10, 5}, plainWhite, brightBlue, 0.35F);
    drawStrokes(picture, strokesOf(letter(helpMark)), {10.4F, 20.4F, 1.2F, 1.6F}, plainWhite);
    return pictureOf(std::move(picture));
}

PictureRef drawHand() {
    Bitmap picture(static_cast<Long>(handRows[0].size()), static_cast<Long>(std::size(handRows)));
    for (Long y = 0; y < picture.height; ++y) {
        for (Long x = 0; x < picture.width; ++x) {
            const char ink = handRows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
            if (ink != '.')
                picture.at(x, y) = ink == '#' ? 0xFF000000U : 0xFFFFFFFFU;
        }
    }
    return pictureOf(std::move(picture));
}

} // namespace

AboutArtwork AboutArtwork::standard() {
    static const AboutArtwork artwork{drawBackground(), drawTitle(), drawHelp(), drawHand()};
    return artwork;
}

} // namespace lumtex::about
