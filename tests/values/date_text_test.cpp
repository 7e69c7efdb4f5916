#include "support/error_number.h"
#include "values/date_text.h"

#include <cmath>

namespace lumtex {
namespace {

constexpr Double hour = 1.0 / 24;
constexpr Double second = 1.0 / 86400;

struct DateRow {
    const char* name;
    StringView text;
    Double days;
    StringView written; ///< how textFromDate writes it again
};

constexpr DateRow dateRows[] = {
    {"the start day", u"1899-12-30", 0, u"00:00:00"},
    {"the day after the start day", u"1899-12-31", 1, u"1899-12-31"},
    {"year first", u"2024-02-29", 45351, u"2024-02-29"},
    {"short month and day", u"2024-2-9", 45331, u"2024-02-09"},
    {"day first", u"29.02.2024", 45351, u"2024-02-29"},
    {"month first", u"02/29/2024", 45351, u"2024-02-29"},
    {"with hours and minutes", u"2024-02-29 06:00", 45351.25, u"2024-02-29 06:00:00"},
    {"with seconds", u"2024-02-29 12:00:00", 45351.5, u"2024-02-29 12:00:00"},
    {"with a T", u"2024-02-29T18:00", 45351.75, u"2024-02-29 18:00:00"},
    {"day first with a time", u"29.2.2024 6:00", 45351.25, u"2024-02-29 06:00:00"},
    {"month first with a time", u"2/29/2024 6:00:00", 45351.25, u"2024-02-29 06:00:00"},
    {"several blanks before the time", u"2024-02-29   06:00", 45351.25, u"2024-02-29 06:00:00"},
    {"blanks around", u" \t2024-02-29\u00A0", 45351, u"2024-02-29"},
    {"two digits up to 29", u"31.12.29", 47483, u"2029-12-31"},
    {"two digits from 30", u"1.1.30", 10959, u"1930-01-01"},
    {"two digits 00", u"1/1/00", 36526, u"2000-01-01"},
    {"two digits 99", u"12/31/99", 36525, u"1999-12-31"},
    {"time only", u"06:00", 0.25, u"06:00:00"},
    {"time only with seconds", u"6:00:01", 0.25 + second, u"06:00:01"},
    {"midnight", u"00:00", 0, u"00:00:00"},
    {"the last second of a day", u"23:59:59", 86399 * second, u"23:59:59"},
    {"a day before the start day", u"1899-12-29", -1, u"1899-12-29"},
    {"its fraction counts away from zero", u"1899-12-29 06:00", -1.25, u"1899-12-29 06:00:00"},
    {"the first day", u"0100-01-01", -657434, u"0100-01-01"},
    {"the last day", u"9999-12-31", 2958465, u"9999-12-31"},
    {"the last second", u"9999-12-31 23:59:59", 2958465 + 86399 * second, u"9999-12-31 23:59:59"},
    {"a leap day of a whole century", u"2000-02-29", 36585, u"2000-02-29"},
};

TEST(DateFromText, ReadsInvariantDates) {
    for (const DateRow& row : dateRows) {
        SCOPED_TRACE(row.name);
        const auto date = dateFromText(row.text);
        ASSERT_TRUE(date.has_value());
        EXPECT_DOUBLE_EQ(date->days, row.days);
    }
}

TEST(TextFromDate, WritesDateAndTimeAsFarAsTheyAreThere) {
    for (const DateRow& row : dateRows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(textFromDate(Date{row.days}), row.written);
    }
}

struct TextRow {
    const char* name;
    StringView text;
};

constexpr TextRow noDateRows[] = {
    {"nothing", u""},
    {"only blanks", u"  "},
    {"a word", u"today"},
    {"a number", u"45351"},
    {"a decimal number", u"1.5"},
    {"a version number", u"1.2.3"},
    {"day and month only", u"1/2"},
    {"four parts", u"1.2.2003.4"},
    {"mixed separators", u"1.2/2003"},
    {"two digits with the year first", u"24-02-29"},
    {"three digits of a year", u"1.1.100"},
    {"five digits of a year", u"1.1.10000"},
    {"a year before 100", u"0099-12-31"},
    {"no leap year", u"2023-02-29"},
    {"no leap year of a whole century", u"1900-02-29"},
    {"the day 31 of a short month", u"31.04.2024"},
    {"month zero", u"2024-00-01"},
    {"month 13", u"2024-13-01"},
    {"day zero", u"2024-01-00"},
    {"three digits of a day", u"2024-01-001"},
    {"an empty part", u"2024--01"},
    {"a separator at the end", u"2024-01-"},
    {"a date with a broken time", u"2024-01-01 25:00"},
    {"a date with nothing behind its T", u"2024-01-01T"},
    {"a date with a zone", u"2024-01-01T06:00Z"},
    {"hour 24", u"24:00"},
    {"minute 60", u"23:60"},
    {"second 60", u"23:59:60"},
    {"an hour alone", u"23:"},
    {"three digits of a minute", u"1:005"},
    {"four parts of a time", u"1:2:3:4"},
    {"fractions of a second", u"1:02:03.5"},
    {"morning or afternoon", u"1:02 PM"},
    {"the name of a month", u"1 Jan 2024"},
    {"time before date", u"06:00 2024-01-01"},
    {"an unpaired surrogate", u"2024-01-01\xDC00"},
};

TEST(DateFromText, RefusesWhatIsNoDate) {
    for (const TextRow& row : noDateRows) {
        SCOPED_TRACE(row.name);
        EXPECT_FALSE(dateFromText(row.text).has_value());
    }
    EXPECT_FALSE(dateFromText(StringView(u"2024-01-01\0", 11)).has_value());
}

TEST(DateFromText, TextsOfTenMillionUnitsAreReadInOnePass) {
    constexpr std::size_t many = 10'000'000;
    EXPECT_FALSE(dateFromText(String(many, u'1')).has_value());
    EXPECT_FALSE(dateFromText(String(many, u'-')).has_value());
    EXPECT_EQ(dateFromText(String(many, u' ') + u"2024-01-01" + String(many, u' ') + u"06:00"),
              Date{45292.25});
}

TEST(TextFromDate, RoundsToWholeSeconds) {
    EXPECT_EQ(textFromDate(Date{45351 + 0.4 * second}), u"2024-02-29");
    EXPECT_EQ(textFromDate(Date{45351 + 0.6 * second}), u"2024-02-29 00:00:01");
    EXPECT_EQ(textFromDate(Date{45351 + 86399.7 * second}), u"2024-03-01");
    EXPECT_EQ(textFromDate(Date{-1 - 86399.7 * second}), u"00:00:00");
    EXPECT_EQ(textFromDate(Date{-2 - 86399.7 * second}), u"1899-12-29");
}

TEST(TextFromDate, ANegativeFractionOfTheStartDayCountsForward) {
    EXPECT_EQ(textFromDate(Date{-6 * hour}), u"06:00:00");
}

TEST(TextFromDate, NeverRoundsPastTheLastDay) {
    EXPECT_EQ(textFromDate(Date{2958465 + 86399.7 * second}), u"9999-12-31 23:59:59");
}

TEST(TextFromDate, OutsideTheCalendarOverflows) {
    for (const Double days : {-657435.0, 2958466.0, 1e300, -1e300, std::nan("")}) {
        SCOPED_TRACE(days);
        EXPECT_EQ(errorNumberOf([&] { textFromDate(Date{days}); }), ErrorNumber::overflow);
        EXPECT_FALSE(isDateInRange(days));
    }
}

TEST(TextFromDate, EverySecondOfADayReadsBack) {
    for (int i = 0; i < 86400; ++i) {
        const Date after{45351 + i * second};
        ASSERT_EQ(textFromDate(*dateFromText(textFromDate(after))), textFromDate(after)) << i;
        const Date before{-45351 - i * second};
        ASSERT_EQ(textFromDate(*dateFromText(textFromDate(before))), textFromDate(before)) << i;
    }
}

} // namespace
} // namespace lumtex
