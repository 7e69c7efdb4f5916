/// Texts whose letters join, carry marks or run to the left, as pixels.
#include "pixels.h"
#include "raster/raster_surface.h"
#include "test_fonts.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

class ShapedText : public ::testing::Test {
  protected:
    ShapedText() { surface.setFont({.Name = u"Verdana", .Size = 12}); }

    Long widthOf(StringView text) { return static_cast<Long>(surface.textWidth(text)); }

    std::vector<raster::Pixel> printed(std::initializer_list<std::pair<Long, StringView>> texts) {
        surface.Cls();
        for (const auto& [x, text] : texts)
            surface.print(static_cast<Single>(x), 10, text);
        return surface.image().pixels;
    }

    std::vector<raster::Pixel> drawn(StringView text, Long room, TextFormat more = TextFormat::left) {
        surface.Cls();
        Rect rect{10, 10, 10 + room, 60};
        surface.drawText(text, rect, TextFormat::singleLine | TextFormat::wordEllipsis | more);
        return surface.image().pixels;
    }

    raster::RasterSurface surface{300, 60, testFonts()};
};

constexpr StringView alef = u"\u05D0";
constexpr StringView bet = u"\u05D1";
constexpr StringView alefBet = u"\u05D0\u05D1";

TEST_F(ShapedText, TheFirstLetterOfAHebrewWordStandsAtItsRight) {
    EXPECT_EQ(printed({{10, alefBet}}), printed({{10, bet}, {10 + widthOf(bet), alef}}));
}

TEST_F(ShapedText, AHebrewWordTurnsBetweenLatinOnes) {
    const Long word = 10 + widthOf(u"ab ");
    EXPECT_EQ(printed({{10, u"ab \u05D0\u05D1 cd"}}),
              printed({{10, u"ab "}, {word, alefBet}, {word + widthOf(alefBet), u" cd"}}));
}

TEST_F(ShapedText, DigitsBehindAHebrewWordStandToItsLeftInTheirOwnOrder) {
    EXPECT_EQ(printed({{10, u"\u05D0\u05D1 127"}}),
              printed({{10, u"127"}, {10 + widthOf(u"127 "), alefBet}}));
}

TEST_F(ShapedText, BracketsInARightToLeftPartAreMirrored) {
    const Long close = 10 + widthOf(u"\u05D2 ");
    EXPECT_EQ(printed({{10, u"\u05D0 (\u05D1) \u05D2"}}),
              printed({{10, u"\u05D2"},
                       {close, u"("},
                       {close + widthOf(u"("), bet},
                       {close + widthOf(u"(") + widthOf(bet), u")"},
                       {close + widthOf(u"( )") + widthOf(bet), alef}}));
}

TEST_F(ShapedText, ArabicLettersJoin) {
    // Beh: alone, and as two forms that join.
    EXPECT_NE(widthOf(u"\u0628\u0628"), 2 * widthOf(u"\u0628"));
    EXPECT_EQ(printed({{10, u"\u0628\u0628"}}),
              printed({{10, u"\uFE90"}, {10 + widthOf(u"\uFE90"), u"\uFE91"}}));
}

TEST_F(ShapedText, ArabicJoinsBesideLatinInOneText) {
    EXPECT_EQ(widthOf(u"ab \u0628\u0628"), widthOf(u"ab ") + widthOf(u"\u0628\u0628"));
}

TEST_F(ShapedText, AMarkTakesNoRoom) {
    EXPECT_EQ(widthOf(u"e\u0301x"), widthOf(u"ex"));
    EXPECT_EQ(printed({{10, u"e\u0301"}}), printed({{10, u"\u00E9"}}));
}

TEST_F(ShapedText, ControlsAreNotDrawnBesideOtherScriptsEither) {
    EXPECT_EQ(printed({{10, u"\u05D0\x01\u05D1"}}), printed({{10, alefBet}}));
    EXPECT_EQ(printed({{10, u"\u05D0\r\u05D1"}}), printed({{10, alef}, {10 + widthOf(alef), bet}}))
        << "a break separates directions too";
    EXPECT_EQ(printed({{10, u"\u03A9\x01\u0416"}}), printed({{10, u"\u03A9\u0416"}}));
    EXPECT_EQ(printed({{10, u"\u0416\t\u0416"}}), printed({{10, u"\u0416 \u0416"}}));
    EXPECT_EQ(widthOf(u"\u05D0\u200F"), widthOf(alef)) << "nor are marks of direction";
}

TEST_F(ShapedText, AShortenedHebrewTextKeepsItsBeginningAndHasItsDotsAtTheRight) {
    constexpr StringView word = u"\u05D0\u05D1\u05D2\u05D3\u05D4";
    const Long room = widthOf(alefBet) + widthOf(u"...");
    EXPECT_LT(room, widthOf(word));
    EXPECT_EQ(drawn(word, room), printed({{10, alefBet}, {10 + widthOf(alefBet), u"..."}}));
}

TEST_F(ShapedText, AShortenedTextIsNoWiderThanItsRoom) {
    constexpr StringView text = u"\u0628\u0633\u0645 \u0627\u0644\u0644\u0647 e\u0301\u0301 (\u05D0) 12";
    for (Long room = widthOf(u"..."); room < widthOf(text); ++room) {
        Rect rect{0, 0, room, 30};
        surface.drawText(text, rect, TextFormat::wordEllipsis | TextFormat::calcRect);
        EXPECT_LE(rect.Right, room);
        drawn(text, room);
        EXPECT_LE(inkOf(surface.image()).Right, 10 + room + 1) << room;
    }
}

TEST_F(ShapedText, ACutNeverSeparatesALetterFromItsMark) {
    const Long letter = widthOf(u"\u041F");
    const Long room = letter + widthOf(u"...");
    EXPECT_EQ(drawn(u"\u041F\u0323\u041F\u041F", room),
              printed({{10, u"\u041F\u0323"}, {10 + letter, u"..."}}));
}

TEST_F(ShapedText, TheMarkedLetterOfAHebrewTextIsUnderlinedWhereItStands) {
    surface.Cls();
    Rect rect{10, 10, 290, 60};
    surface.drawText(u"&\u05D0\u05D1", rect, TextFormat::singleLine);
    const Rect first = inkOf(surface.image());
    surface.Cls();
    surface.drawText(u"\u05D0\u05D1", rect, TextFormat::singleLine);
    const Rect plain = inkOf(surface.image());
    EXPECT_GT(first.Bottom, plain.Bottom);
    EXPECT_NE(drawn(u"&\u05D0\u05D1", 200), drawn(u"\u05D0&\u05D1", 200));
    // Ink below the letters: at the right for the first letter, at the left for the second.
    const auto lowest = [&](StringView text) {
        drawn(text, 200);
        const Bitmap image = surface.image();
        const Rect all = inkOf(image);
        Long left = image.width;
        for (Long x = image.width - 1; x >= 0; --x) {
            if (image.pixels[static_cast<std::size_t>((all.Bottom - 1) * image.width + x)] != image.pixels[0])
                left = x;
        }
        return left;
    };
    EXPECT_EQ(lowest(u"&\u05D0\u05D1"), 10 + widthOf(bet));
    EXPECT_EQ(lowest(u"\u05D0&\u05D1"), 10);
}

TEST_F(ShapedText, LongLinesAreCutBetweenLettersOnly) {
    String text(raster::Typeface::longestRun - 1, u'a');
    const Long before = widthOf(text);
    text += u"\u0416\u0301\U0001F600";
    EXPECT_EQ(widthOf(text), before + widthOf(u"\u0416\u0301\U0001F600"));
    String pairs(raster::Typeface::longestRun - 1, u'a');
    pairs += u"\U0001F600";
    EXPECT_EQ(widthOf(pairs), before + widthOf(u"\U0001F600"));
}

TEST_F(ShapedText, BrokenTextIsDrawnWithoutHarm) {
    String every;
    for (char32_t unit = 0x2FF; unit < 0xFFFF; unit += 7)
        every += static_cast<char16_t>(unit);
    EXPECT_GT(widthOf(every), 0);
    for (std::size_t from = 0; from + 40 < every.size(); from += 997)
        drawn(StringView(every).substr(from, 40), 100);
    drawn(u"\xDC00\xD800", 5);
    drawn(u"\x202E\x202E\x2066", 5);
}

} // namespace
} // namespace lumtex::testing
