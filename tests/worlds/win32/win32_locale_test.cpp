#include "support/error_number.h"
#include "worlds/win32/win32_locale.h"

#include <limits>
#include <vector>

namespace lumtex::win32 {
namespace {

constexpr LCID american = 0x0409;
constexpr LCID german = 0x0407;

/// What a text is as a number: the number, or why it is none.
std::string numberText(LCID locale, StringView text) {
    const NumberFromText read = Win32Locale(locale).readNumber(text);
    if (read.outcome == NumberFromText::tooLarge)
        return "too large";
    if (read.outcome == NumberFromText::notANumber)
        return "none";
    const String plain = textFromNumber(read.value);
    return {plain.begin(), plain.end()};
}

struct NumberRow {
    StringView text;
    const char* american;
    const char* german;
};

constexpr NumberRow numberRows[] = {
    {u" 12 ", "12", "12"},
    {u"1.5", "1.5", "15"},
    {u"1,5", "15", "1.5"},
    {u"1.234,56", "1.23456", "1234.56"},
    {u"1,234.56", "1234.56", "1.23456"},
    {u"(5)", "-5", "-5"},
    {u"5-", "-5", "-5"},
    {u"1E3", "1000", "1000"},
    {u"1D3", "1000", "1000"},
    {u"1,5d3", "15000", "1500"},
    {u"&H1F", "31", "31"},
    {u"1e999", "too large", "too large"},
    {u"twelve", "none", "none"},
    {u"D3", "none", "none"},
    {u"", "none", "none"},
};

TEST(Win32Locale, ReadsNumbersAsTheSystemDoes) {
    for (const NumberRow& row : numberRows) {
        SCOPED_TRACE(std::string(row.text.begin(), row.text.end()));
        EXPECT_EQ(numberText(american, row.text), row.american);
        EXPECT_EQ(numberText(german, row.text), row.german);
    }
}

TEST(Win32Locale, ReadsDatesAsTheSystemDoes) {
    const Win32Locale us(american);
    const Win32Locale de(german);
    EXPECT_EQ(de.readDate(u"29.02.2024"), Date{45351});
    EXPECT_EQ(us.readDate(u"2/29/2024"), Date{45351});
    EXPECT_EQ(de.readDate(u"3.4.2024"), Date{45385});
    EXPECT_EQ(us.readDate(u"3/4/2024"), Date{45355});
    EXPECT_EQ(us.readDate(u"2024-02-29 06:00"), Date{45351.25});
    EXPECT_EQ(us.readDate(u"no day"), std::nullopt);
    EXPECT_EQ(de.readDate(u"45351"), std::nullopt);
}

TEST(Win32Locale, WritesNumbersWithTheMarkOfTheSettings) {
    const Win32Locale us(american);
    const Win32Locale de(german);
    EXPECT_EQ(us.textOf(-1234.5), u"-1234.5");
    EXPECT_EQ(de.textOf(-1234.5), u"-1234,5");
    EXPECT_EQ(de.textOf(1.1F), u"1,1");
    EXPECT_EQ(de.textOf(1e15), u"1E+15");
    EXPECT_EQ(de.textOf(LongLong{std::numeric_limits<std::int64_t>::min() + 1}), u"-9223372036854775807");
    EXPECT_EQ(de.textOf(UnsignedLongLong{std::numeric_limits<std::uint64_t>::max()}),
              u"18446744073709551615");
    EXPECT_EQ(de.textOf(Currency{std::numeric_limits<std::int64_t>::max()}), u"922337203685477,5807");
    constexpr std::uint32_t all = std::numeric_limits<std::uint32_t>::max();
    EXPECT_EQ(de.textOf(Decimal{{all, all, all}, 5, true}), u"-792281625142643375935439,50335");
}

TEST(Win32Locale, WritesDatesThatItReadsAgain) {
    for (const LCID id : {american, german}) {
        const Win32Locale locale(id);
        for (const Double days : {36556.0, 36556.25, 0.5, 2.0, -2.0})
            EXPECT_EQ(locale.readDate(locale.textOf(Date{days})), Date{days}) << days;
        EXPECT_EQ(locale.readDate(locale.dateText(Date{36556.25})), Date{36556});
        EXPECT_EQ(locale.readDate(locale.timeText(Date{36556.25})), Date{0.25});
        EXPECT_EQ(errorNumberOf([&] { locale.textOf(Date{3e6}); }), ErrorNumber::overflow);
    }
    EXPECT_TRUE(Win32Locale(german).textOf(Date{45351}).starts_with(u"29."));
    EXPECT_TRUE(Win32Locale(american).textOf(Date{45351}).starts_with(u"2/29/"));
}

TEST(UsersLanguage, IsEnglishUnlessTheProductSpeaksIt) {
    EXPECT_EQ(languageOf(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN_AUSTRIAN)), words::Language::german);
    EXPECT_EQ(languageOf(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_UK)), words::Language::english);
    EXPECT_EQ(languageOf(MAKELANGID(LANG_FRENCH, SUBLANG_FRENCH)), words::Language::english);
}

} // namespace
} // namespace lumtex::win32
