#include "values/text.h"

#include <gtest/gtest.h>

namespace lumtex {
namespace {

struct Row {
    const char* name;
    std::string_view bytes;
    StringView units;
};

constexpr Row sameBothWays[] = {
    {"nothing", "", u""},
    {"ASCII", "abc", u"abc"},
    {"two bytes", "\xC3\x9C", u"\u00DC"},
    {"three bytes", "\xE2\x82\xAC", u"\u20AC"},
    {"four bytes", "\xF0\x9F\x98\x80", u"\xD83D\xDE00"},
    {"the last point of one byte", "\x7F", u"\u007F"},
    {"the first point of two bytes", "\xC2\x80", u"\u0080"},
    {"the last point of two bytes", "\xDF\xBF", u"\u07FF"},
    {"the first point of three bytes", "\xE0\xA0\x80", u"\u0800"},
    {"the point before the surrogates", "\xED\x9F\xBF", u"\uD7FF"},
    {"the point behind the surrogates", "\xEE\x80\x80", u"\uE000"},
    {"the last point of three bytes", "\xEF\xBF\xBF", u"\uFFFF"},
    {"the first point of four bytes", "\xF0\x90\x80\x80", u"\xD800\xDC00"},
    {"the last point of all", "\xF4\x8F\xBF\xBF", u"\xDBFF\xDFFF"},
    {"a zero in the middle", std::string_view("a\0b", 3), StringView(u"a\0b", 3)},
};

TEST(Text, Utf8AndUtf16SayTheSame) {
    for (const Row& row : sameBothWays) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(fromUtf8(row.bytes), row.units);
        EXPECT_EQ(toUtf8(row.units), row.bytes);
    }
}

constexpr Row badBytes[] = {
    {"a continuation alone", "\x80", u"\uFFFD"},
    {"two continuations alone", "\x80\x80", u"\uFFFD\uFFFD"},
    {"a lead at the end", "\xC3", u"\uFFFD"},
    {"a cut sequence is one bad sequence", "\xE2\x82", u"\uFFFD"},
    {"a cut sequence before a letter",
     "\xF0\x9F\x98"
     "a",
     u"\uFFFD"
     u"a"},
    {"an overlong form of two bytes", "\xC0\x80", u"\uFFFD\uFFFD"},
    {"an overlong form of three bytes", "\xE0\x80\x80", u"\uFFFD\uFFFD\uFFFD"},
    {"an overlong form of four bytes", "\xF0\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
    {"a surrogate", "\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},
    {"past the last point", "\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
    {"bytes that never occur", "\xFE\xFF", u"\uFFFD\uFFFD"},
};

TEST(Text, EachBadSequenceOfBytesBecomesOneReplacement) {
    for (const Row& row : badBytes) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(fromUtf8(row.bytes), row.units);
    }
}

constexpr Row badUnits[] = {
    {"a high surrogate alone", "\xEF\xBF\xBD", u"\xD800"},
    {"a low surrogate alone", "\xEF\xBF\xBD", u"\xDC00"},
    {"two high ones before a low one", "\xEF\xBF\xBD\xF0\x9F\x98\x80", u"\xD83D\xD83D\xDE00"},
    {"the wrong way round", "\xEF\xBF\xBD\xEF\xBF\xBD", u"\xDC00\xD800"},
    {"a high one before a letter",
     "\xEF\xBF\xBD"
     "a",
     u"\xD800"
     u"a"},
};

TEST(Text, EachUnpairedSurrogateBecomesOneReplacement) {
    for (const Row& row : badUnits) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(toUtf8(row.units), row.bytes);
    }
}

TEST(Text, TrimmingTakesBlanksAtTheEndsOnly) {
    EXPECT_EQ(trimmed(u" \t\r\n\v\f\u00A0a b\u00A0\f\v\n\r\t "), u"a b");
    EXPECT_EQ(trimmed(u"\t \u00A0"), u"");
    EXPECT_EQ(trimmed(u""), u"");
    EXPECT_EQ(trimmed(StringView(u"\0a", 2)), StringView(u"\0a", 2));
}

TEST(Text, NamesDifferByMoreThanCase) {
    EXPECT_TRUE(sameName(u"ItemText", u"iTEMtEXT"));
    EXPECT_TRUE(sameName(u"", u""));
    EXPECT_FALSE(sameName(u"ItemText", u"ItemTex"));
    EXPECT_FALSE(sameName(u"ItemTex", u"ItemText"));
    // The units beside A to Z are letters of no case.
    EXPECT_FALSE(sameName(u"@[", u"`{"));
}

TEST(AppendFromUtf8, PutsTheTextBehindWhatIsThere) {
    String text = u"plain|";
    appendFromUtf8(text, "ascii");
    appendFromUtf8(text, "");
    appendFromUtf8(text, "|Z\xC3\xBCrich|\xFF|\xF0\x9F\x98\x80");
    EXPECT_EQ(text, u"plain|ascii|Z\u00FCrich|\uFFFD|\U0001F600");
}

} // namespace
} // namespace lumtex
