/// Where formatted text stands, as the system's own routine places it.
#include "pixels.h"
#include "raster/raster_surface.h"
#include "test_fonts.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

class FormattedText : public ::testing::Test {
  protected:
    FormattedText() { surface.setFont({.Name = u"Courier New", .Size = 9}); }

    /// The pixels that a text of ten letters in a rectangle too narrow for it sets.
    Rect ink(const Rect& rect, TextFormat format) {
        surface.Cls();
        Rect area = rect;
        surface.drawText(u"HHHHHHHHHH", area, format);
        return inkOf(surface.image());
    }

    raster::RasterSurface surface{200, 60, testFonts()};
};

TEST_F(FormattedText, OddHeightsAreHalvedEachForItself) {
    const auto line = static_cast<Long>(surface.textHeight(u"A"));
    for (Long height = 0; height < 40; ++height) {
        Rect rect{0, 0, 200, height};
        EXPECT_EQ(surface.drawText(u"A", rect, TextFormat::singleLine | TextFormat::vCenter),
                  height / 2 - line / 2 + line)
            << height;
    }
}

TEST_F(FormattedText, AShortenedLineIsAlignedWithItsDots) {
    const auto dots = static_cast<Long>(surface.textWidth(u"..."));
    const auto letter = static_cast<Long>(surface.textWidth(u"H"));
    const Long room = dots + 2 * letter + letter / 2; // half a letter stays free
    const Rect rect{10, 0, 10 + room, 30};
    const Rect left = ink(rect, TextFormat::left | TextFormat::singleLine | TextFormat::wordEllipsis);
    const Rect right = ink(rect, TextFormat::right | TextFormat::singleLine | TextFormat::wordEllipsis);
    const Rect center = ink(rect, TextFormat::center | TextFormat::singleLine | TextFormat::wordEllipsis);
    EXPECT_EQ(right.Left - left.Left, letter / 2);
    EXPECT_EQ(center.Left - left.Left, letter / 2 / 2);
}

TEST_F(FormattedText, TheExtentOfAShortenedLineIsThatOfWhatIsShown) {
    const auto dots = static_cast<Long>(surface.textWidth(u"..."));
    const auto letter = static_cast<Long>(surface.textWidth(u"H"));
    Rect rect{0, 0, dots + 2 * letter + letter / 2, 30};
    surface.drawText(u"HHHHHHHHHH", rect, TextFormat::wordEllipsis | TextFormat::calcRect);
    EXPECT_EQ(rect.Right, dots + 2 * letter);
    Rect narrow{0, 0, 1, 30};
    surface.drawText(u"HHHHHHHHHH", narrow, TextFormat::wordEllipsis | TextFormat::calcRect);
    EXPECT_EQ(narrow.Right, dots) << "the dots are never left out";
}

TEST_F(FormattedText, APrefixCharacterAtTheEndStandsForItself) {
    const auto widthOf = [&](StringView text) {
        Rect rect{0, 0, 200, 30};
        surface.drawText(text, rect, TextFormat::singleLine | TextFormat::calcRect);
        return static_cast<Single>(rect.Right);
    };
    EXPECT_EQ(widthOf(u"Save &as&"), surface.textWidth(u"Save as&"));
    EXPECT_EQ(widthOf(u"a&&b"), surface.textWidth(u"a&b"));
}

TEST_F(FormattedText, IsShortenedFromTheFirstPixelThatIsMissing) {
    const auto whole = static_cast<Long>(surface.textWidth(u"HHHHHHHHHH"));
    const auto dots = static_cast<Long>(surface.textWidth(u"..."));
    const auto letter = static_cast<Long>(surface.textWidth(u"H"));
    const auto widthIn = [&](Long room) {
        Rect rect{0, 0, room, 30};
        surface.drawText(u"HHHHHHHHHH", rect, TextFormat::wordEllipsis | TextFormat::calcRect);
        return rect.Right;
    };
    EXPECT_EQ(widthIn(whole), whole);
    EXPECT_EQ(widthIn(whole - 1), dots + 6 * letter);
    EXPECT_EQ(widthIn(dots + 6 * letter), dots + 6 * letter) << "six letters fit exactly";
    EXPECT_EQ(widthIn(dots + 6 * letter - 1), dots + 5 * letter);
}

TEST_F(FormattedText, EndsAtItsFirstZeroCharacter) {
    constexpr StringView text(u"HH\0HH", 5);
    const auto painted = [&](StringView each) {
        surface.Cls();
        Rect rect{10, 10, 190, 50};
        surface.drawText(each, rect, TextFormat::left);
        surface.print(100, 30, each);
        return surface.image().pixels;
    };
    EXPECT_EQ(painted(text), painted(u"HH"));
    Rect whole{0, 0, 100, 100};
    surface.drawText(text, whole, TextFormat::left | TextFormat::calcRect);
    EXPECT_EQ(whole.Right, static_cast<Long>(surface.textWidth(u"HH")));
    Rect lines{0, 0, 100, 100};
    EXPECT_EQ(surface.drawText(StringView(u"H\0\nH", 4), lines, TextFormat::calcRect),
              static_cast<Long>(surface.textHeight(u"H")));
}

TEST_F(FormattedText, TheWidthOfATextCountsWhatIsBehindAZeroCharacter) {
    EXPECT_GT(surface.textWidth(StringView(u"HH\0HH", 5)), surface.textWidth(u"HHH"));
}

TEST_F(FormattedText, AShapedTextIsAsWideAsItsLetters) {
    const Single alef = surface.textWidth(u"\u05D0");
    EXPECT_GT(alef, 0);
    EXPECT_EQ(surface.textWidth(u"\u05D0\u05D0\u05D0"), 3 * alef);
}

} // namespace
} // namespace lumtex::testing
