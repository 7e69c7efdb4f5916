#include "values/number_text.h"
#include "values/variant.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

namespace lumtex {
namespace {

struct NumberRow {
    const char* name;
    StringView text;
    Double number;
};

constexpr NumberRow numberRows[] = {
    {"digits", u"42", 42},
    {"a minus", u"-42", -42},
    {"a plus", u"+42", 42},
    {"a blank behind the sign", u"- 42", -42},
    {"blanks around", u" \t42\r\n", 42},
    {"no-break spaces around", u"\u00A042\u00A0", 42},
    {"a decimal point", u"1.25", 1.25},
    {"nothing before the point", u".5", 0.5},
    {"nothing behind the point", u"5.", 5},
    {"leading zeros", u"000123", 123},
    {"zeros behind the point", u"0.00000125", 0.00000125},
    {"zero", u"0", 0},
    {"zero with a huge exponent", u"0e999999", 0},
    {"an exponent", u"1e5", 100000},
    {"a capital exponent", u"1E5", 100000},
    {"an exponent with D", u"1d5", 100000},
    {"an exponent with a capital D and a plus", u"1.5D+2", 150},
    {"a negative exponent", u"25e-1", 2.5},
    {"the largest Double", u"1.7976931348623157e308", std::numeric_limits<Double>::max()},
    {"the smallest Double", u"5e-324", std::numeric_limits<Double>::denorm_min()},
    {"just enough for the smallest Double", u"3e-324", std::numeric_limits<Double>::denorm_min()},
    {"just too small for a Double", u"2e-324", 0},
    {"too small for a Double", u"1e-400", 0},
    {"far too small for a Double", u"1e-99999999999999999999999", 0},
    {"many digits, a small number", u"0.00000000000000000000000000000000000000000000000001e50", 1},
    {"hexadecimal", u"&HFF", 255},
    {"hexadecimal in small letters", u"&hff", 255},
    {"hexadecimal with 16 bits keeps its value", u"&HFFFF", 65535},
    {"hexadecimal with 32 bits is a Long", u"&H8000000F", -2147483633},
    {"hexadecimal zeros in front do not count", u"&H00000000000FF", 255},
    {"octal", u"&O17", 15},
    {"octal in small letters", u"&o17", 15},
};

TEST(NumberFromText, ReadsInvariantNumbers) {
    for (const NumberRow& row : numberRows) {
        SCOPED_TRACE(row.name);
        const auto number = numberFromText(row.text);
        ASSERT_TRUE(number.has_value());
        EXPECT_EQ(*number, row.number);
        EXPECT_FALSE(*number == 0 && std::signbit(*number));
    }
}

struct TextRow {
    const char* name;
    StringView text;
};

constexpr TextRow noNumberRows[] = {
    {"nothing", u""},
    {"only blanks", u"   "},
    {"def", u"def"},
    {"a word", u"abc"},
    {"a sign alone", u"-"},
    {"a point alone", u"."},
    {"a signed point", u"-."},
    {"two signs", u"--1"},
    {"a trailing sign", u"1-"},
    {"two points", u"1.2.3"},
    {"an exponent alone", u"e5"},
    {"an exponent without digits", u"1e"},
    {"an exponent with only a sign", u"1e+"},
    {"a broken exponent", u"1e5.5"},
    {"a group mark", u"1,234"},
    {"a decimal comma", u"1,5"},
    {"a blank between digits", u"1 234"},
    {"a currency sign", u"$5"},
    {"a percent sign", u"5%"},
    {"parentheses", u"(5)"},
    {"infinity", u"inf"},
    {"the classic infinity", u"1.#INF"},
    {"not a number", u"nan"},
    {"hexadecimal of another language", u"0x10"},
    {"an ampersand alone", u"&"},
    {"hexadecimal without digits", u"&H"},
    {"hexadecimal with a wrong digit", u"&HFG"},
    {"hexadecimal with a sign", u"&H-1"},
    {"a signed hexadecimal", u"-&HFF"},
    {"octal with a wrong digit", u"&O8"},
    {"another base", u"&B101"},
    {"digits of another script", u"\u0661\u0662"},
    {"an unpaired surrogate", u"1\xD800"},
    {"a Boolean word", u"True"},
};

TEST(NumberFromText, RefusesWhatIsNoNumber) {
    for (const TextRow& row : noNumberRows) {
        SCOPED_TRACE(row.name);
        EXPECT_FALSE(numberFromText(row.text).has_value());
        EXPECT_EQ(readNumber(row.text).outcome, NumberFromText::notANumber);
    }
}

TEST(NumberFromText, AZeroUnitIsNoBlank) {
    EXPECT_FALSE(numberFromText(StringView(u"12\0", 3)).has_value());
    EXPECT_FALSE(numberFromText(StringView(u"1\0"
                                           u"2",
                                           3))
                     .has_value());
    EXPECT_FALSE(numberFromText(StringView(u"\0", 1)).has_value());
}

constexpr TextRow tooLargeRows[] = {
    {"a large exponent", u"1e999"},
    {"a large negative number", u"-1e999"},
    {"just above the largest Double", u"1.7976931348623159e308"},
    {"an endless exponent", u"1e99999999999999999999999999"},
    {"more than 32 bits", u"&H100000000"},
    {"more than 32 bits, octal", u"&O77777777777"},
};

TEST(NumberFromText, TooLargeIsToldApartFromNoNumber) {
    for (const TextRow& row : tooLargeRows) {
        SCOPED_TRACE(row.name);
        EXPECT_FALSE(numberFromText(row.text).has_value());
        EXPECT_EQ(readNumber(row.text).outcome, NumberFromText::tooLarge);
    }
}

TEST(NumberFromText, RoundsCorrectlyPastTheDigitsItKeeps) {
    // Half way between 1 and the next Double: the tie goes to even, until a digit far behind breaks it.
    const String tie = u"1.00000000000000011102230246251565404236316680908203125";
    EXPECT_EQ(numberFromText(tie), 1.0);
    EXPECT_EQ(numberFromText(tie + String(2000, u'0')), 1.0);
    EXPECT_EQ(numberFromText(tie + String(2000, u'0') + u"1"), std::nextafter(1.0, 2.0));
}

TEST(NumberFromText, AnyDoubleWrittenExactlyReadsBack) {
    std::mt19937_64 random(20240229);
    for (int i = 0; i < 20000; ++i) {
        const auto number = std::bit_cast<Double>(random());
        if (!std::isfinite(number))
            continue;
        std::array<char, 64> buffer{};
        const auto written = std::to_chars(buffer.begin(), buffer.end(), number);
        ASSERT_EQ(numberFromText(String(buffer.begin(), written.ptr)), number) << buffer.data();
    }
}

TEST(NumberFromText, AnyNumberTextReadsBackAsTheNumberItShows) {
    std::mt19937_64 random(19991231);
    for (int i = 0; i < 20000; ++i) {
        const auto number = std::bit_cast<Double>(random());
        // The largest ones round up past the largest Double.
        if (!std::isfinite(number) || std::fabs(number) > 1.79769313486231e308)
            continue;
        const String text = textFromNumber(number);
        const auto read = numberFromText(text);
        ASSERT_TRUE(read.has_value());
        ASSERT_EQ(textFromNumber(*read), text);
    }
}

TEST(NumberFromText, TextsOfTenMillionUnitsAreReadInOnePass) {
    constexpr std::size_t many = 10'000'000;
    EXPECT_EQ(readNumber(String(many, u'9')).outcome, NumberFromText::tooLarge);
    EXPECT_EQ(numberFromText(String(many, u'0') + u"7"), 7.0);
    EXPECT_EQ(numberFromText(u"0." + String(many, u'0') + u"7"), 0.0);
    EXPECT_EQ(numberFromText(u"0." + String(many - 1, u'0') + u"7e10000000"), 7.0);
    EXPECT_EQ(numberFromText(String(many, u' ') + u"7" + String(many, u' ')), 7.0);
    EXPECT_EQ(numberFromText(u"1e" + String(many, u'0') + u"2"), 100.0);
    EXPECT_EQ(numberFromText(u"&H" + String(many, u'0') + u"2"), 2.0);
    EXPECT_FALSE(numberFromText(String(many, u'\xD800')).has_value());
}

struct DoubleRow {
    const char* name;
    Double number;
    StringView text;
};

constexpr DoubleRow doubleRows[] = {
    {"zero", 0, u"0"},
    {"minus zero shows no sign", -0.0, u"0"},
    {"a whole number", 42, u"42"},
    {"a negative number", -42, u"-42"},
    {"a fraction", 0.1, u"0.1"},
    {"a sum that is not exact", 0.1 + 0.2, u"0.3"},
    {"15 significant digits", 1.0 / 3, u"0.333333333333333"},
    {"the last digit is rounded", 2.0 / 3, u"0.666666666666667"},
    {"15 digits before the point", 123456789012345.0, u"123456789012345"},
    {"16 digits before the point", 1234567890123456.0, u"1.23456789012346E+15"},
    {"ten to the 14", 1e14, u"100000000000000"},
    {"ten to the 15", 1e15, u"1E+15"},
    {"rounding up to ten to the 15", 999999999999999.9, u"1E+15"},
    {"a hundred exponents", 1e100, u"1E+100"},
    {"the largest", std::numeric_limits<Double>::max(), u"1.79769313486232E+308"},
    {"a small number with few digits", 0.00001, u"0.00001"},
    {"a small number with many digits", 1.0 / 30000, u"3.33333333333333E-05"},
    {"fifteen digits behind the point", 1e-15, u"0.000000000000001"},
    {"sixteen digits behind the point", 1e-16, u"1E-16"},
    {"a negative exponent form", -1.5e-20, u"-1.5E-20"},
    {"infinity", std::numeric_limits<Double>::infinity(), u"1.#INF"},
    {"minus infinity", -std::numeric_limits<Double>::infinity(), u"-1.#INF"},
    {"not a number", std::numeric_limits<Double>::quiet_NaN(), u"1.#QNAN"},
};

TEST(TextFromNumber, ADoubleHasFifteenSignificantDigits) {
    for (const DoubleRow& row : doubleRows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(textFromNumber(row.number), row.text);
    }
}

struct SingleRow {
    const char* name;
    Single number;
    StringView text;
};

constexpr SingleRow singleRows[] = {
    {"a fraction", 0.1F, u"0.1"},
    {"7 significant digits", 1.0F / 3, u"0.3333333"},
    {"7 digits before the point", 1234567.0F, u"1234567"},
    {"8 digits before the point", 12345678.0F, u"1.234568E+07"},
    {"ten to the 7", 1e7F, u"1E+07"},
    {"the largest", std::numeric_limits<Single>::max(), u"3.402823E+38"},
    {"a small number", 1e-7F, u"0.0000001"},
    {"a smaller number", 1e-8F, u"1E-08"},
};

TEST(TextFromNumber, ASingleHasSevenSignificantDigits) {
    for (const SingleRow& row : singleRows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(textFromNumber(row.number), row.text);
    }
}

} // namespace
} // namespace lumtex
