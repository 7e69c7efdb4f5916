/// Which parts of a line run from right to left, and where they stand.
#include "raster/text_direction.h"
#include "values/text.h"

#include <string>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

/// The parts from the left, with "<" behind those that run to the left.
std::string shown(StringView line) {
    std::string parts;
    for (const raster::DirectedText& part : raster::inVisualOrder(line))
        parts += "[" + std::to_string(part.from) + "+" + std::to_string(part.length) +
                 (part.rightToLeft ? "<]" : "]");
    return parts;
}

TEST(TextDirection, ALatinLineIsOnePart) {
    EXPECT_EQ(shown(u"Lisbon 12"), "[0+9]");
    EXPECT_EQ(shown(u""), "");
}

TEST(TextDirection, AHebrewWordTurnsWithinItsLine) {
    EXPECT_EQ(shown(u"ab \u05D0\u05D1\u05D2 cd"), "[0+3][3+3<][6+3]");
}

TEST(TextDirection, WordsOfOneDirectionTurnTogether) {
    EXPECT_EQ(shown(u"\u05D0\u05D1 \u05D2\u05D3"), "[0+5<]");
}

TEST(TextDirection, DigitsBehindArabicStandToItsLeftAndRunToTheRight) {
    EXPECT_EQ(shown(u"\u0633\u0639\u0631 123"), "[4+3][0+4<]");
    EXPECT_EQ(shown(u"\u0633\u0639\u0631 \u0661\u0662\u0663"), "[4+3][0+4<]");
}

TEST(TextDirection, ALineRunsFromLeftToRightAlthoughItBeginsInHebrew) {
    EXPECT_EQ(shown(u"\u05D0\u05D1 ab."), "[0+2<][2+4]");
    EXPECT_EQ(shown(u"\u05D0\u05D1."), "[0+2<][2+1]") << "the full stop stands at the right end";
}

TEST(TextDirection, BracketsTurnWithWhatTheyHold) {
    EXPECT_EQ(shown(u"\u05D0 (\u05D1) \u05D2"), "[0+7<]");
    EXPECT_EQ(shown(u"a (\u05D1) b"), "[0+3][3+1<][4+3]");
}

TEST(TextDirection, MarksOfDirectionAreObeyed) {
    EXPECT_EQ(shown(u"\u202Eabc\u202C"), "[0+1][1+3<][4+1]");
    EXPECT_EQ(shown(u"\u05D0\u05D1.\u200F"), "[0+4<]") << "the full stop now stands at the left end";
}

TEST(TextDirection, PairsOfUnitsAreOneCharacter) {
    EXPECT_EQ(shown(u"\U00010800\U00010801 \U0001F600"), "[0+4<][4+3]");
    EXPECT_EQ(shown(u"\xD802"), "[0+1]") << "half a pair";
}

TEST(TextDirection, OnlyTextsThatMayTurnAreAskedAboutDirections) {
    for (const StringView text : {u"",
                                  u"Lisbon",
                                  u"\u0395\u03BB\u03BB\u03AC\u03B4\u03B1",
                                  u"\u0928\u092E",
                                  u"\u65E5\u672C",
                                  u"\U0001F600"})
        EXPECT_FALSE(raster::mayTurn(text)) << toUtf8(text);
    for (const StringView text : {u"\u05D0",
                                  u"\u0633",
                                  u"a\u200F",
                                  u"\u202Eabc",
                                  u"\u2067a",
                                  u"\uFB2A",
                                  u"\uFE8D",
                                  u"\U00010800",
                                  u"\U0001E900"})
        EXPECT_TRUE(raster::mayTurn(text)) << toUtf8(text);
}

TEST(TextDirection, EveryUnitThatTurnsAloneIsOneThatMayTurn) {
    for (char32_t unit = 1; unit < 0xD800; ++unit) {
        const char16_t text[] = {u'a', static_cast<char16_t>(unit), u'b'};
        const StringView line(text, 3);
        const auto parts = raster::inVisualOrder(line);
        EXPECT_TRUE(parts.size() == 1 || raster::mayTurn(line)) << std::hex << static_cast<unsigned>(unit);
    }
}

} // namespace
} // namespace lumtex::testing
