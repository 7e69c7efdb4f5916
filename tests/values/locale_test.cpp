#include "support/error_number.h"
#include "values/fixed_locale.h"

#include <limits>
#include <memory>

namespace lumtex {
namespace {

struct NumberRow {
    const char* name;
    StringView text;
    std::optional<Double> invariant;
    std::optional<Double> german;
};

constexpr NumberRow numberRows[] = {
    {"digits", u" 12 ", 12, 12},
    {"a point", u"1.5", 1.5, 15},
    {"a comma", u"1,5", std::nullopt, 1.5},
    {"groups and decimals", u"1.234,56", std::nullopt, 1234.56},
    {"groups the other way", u"1,234.56", std::nullopt, 1.23456},
    {"many groups", u"-1.2.3", std::nullopt, -123},
    {"a group mark in front", u".5", 0.5, std::nullopt},
    {"a comma in front", u",5", std::nullopt, 0.5},
    {"two commas", u"1,2,3", std::nullopt, std::nullopt},
    {"an exponent", u"1,5e2", std::nullopt, 150},
    {"bits", u"&H1F", 31, 31},
};

TEST(FixedLocale, ReadsNumbersByItsMarks) {
    for (const NumberRow& row : numberRows) {
        SCOPED_TRACE(row.name);
        for (const auto& [locale, expected] :
             {std::pair(&invariantLocale(), row.invariant), std::pair(&germanLocale(), row.german)}) {
            const NumberFromText read = locale->readNumber(row.text);
            EXPECT_EQ(read.outcome == NumberFromText::number, expected.has_value());
            EXPECT_EQ(read.value, expected.value_or(0));
        }
    }
    EXPECT_EQ(germanLocale().readNumber(u"1.000e999").outcome, NumberFromText::tooLarge);
}

struct DateRow {
    const char* name;
    StringView text;
    std::optional<Double> invariant;
    std::optional<Double> german;
};

constexpr DateRow dateRows[] = {
    {"day first", u"29.02.2024", 45351, 45351},
    {"year first", u"2024-02-29", 45351, 45351},
    {"slashes", u"3/4/2024", 45355, 45385},
    {"a day that only one of them has", u"29/2/2024", std::nullopt, 45351},
    {"with a time", u"29.02.2024 12:00", 45351.5, 45351.5},
    {"a number", u"45351", std::nullopt, std::nullopt},
};

TEST(FixedLocale, ReadsDatesInItsOrder) {
    for (const DateRow& row : dateRows) {
        SCOPED_TRACE(row.name);
        for (const auto& [locale, expected] :
             {std::pair(&invariantLocale(), row.invariant), std::pair(&germanLocale(), row.german)}) {
            const auto date = locale->readDate(row.text);
            EXPECT_EQ(date.has_value(), expected.has_value());
            EXPECT_EQ(date.value_or(Date{}).days, expected.value_or(0));
        }
    }
}

/// In the invariant locale and in the German one, with a blank between.
std::string texts(const Variant& value) {
    String both;
    for (const Locale* locale : {&invariantLocale(), &germanLocale()}) {
        const UsingLocale one(*locale);
        both += (both.empty() ? u"" : u" ") + value.toText();
    }
    return {both.begin(), both.end()};
}

TEST(FixedLocale, WritesNumbersWithItsMarkAndDatesInItsOrder) {
    EXPECT_EQ(texts(1234.5), "1234.5 1234,5");
    EXPECT_EQ(texts(Single{-0.1F}), "-0.1 -0,1");
    EXPECT_EQ(texts(1.5e300), "1.5E+300 1,5E+300");
    EXPECT_EQ(texts(Long{-1234}), "-1234 -1234");
    EXPECT_EQ(texts(Date{45351}), "2024-02-29 29.02.2024");
    EXPECT_EQ(texts(Date{0.25}), "06:00:00 06:00:00");
    EXPECT_EQ(texts(Date{45351.5}), "2024-02-29 12:00:00 29.02.2024 12:00:00");
    EXPECT_EQ(texts(true), "True True");
    EXPECT_EQ(errorNumberOf([] { germanLocale().textOf(Date{3e6}); }), ErrorNumber::overflow);
}

struct Moment {
    const char* name;
    Double days;
    StringView date;
    StringView time;
    StringView german;
};

constexpr Moment moments[] = {
    {"midnight", 36526, u"2000-01-01", u"00:00:00", u"01.01.2000"},
    {"last second", 36526.99999, u"2000-01-01", u"23:59:59", u"01.01.2000"},
    {"rounded up to the next day", 36526.999999, u"2000-01-02", u"00:00:00", u"02.01.2000"},
    {"start day", 0, u"1899-12-30", u"00:00:00", u"30.12.1899"},
    {"a time alone", 0.5, u"1899-12-30", u"12:00:00", u"30.12.1899"},
    {"before the start day the time counts forward", -1.25, u"1899-12-29", u"06:00:00", u"29.12.1899"},
};

TEST(FixedLocale, DateAndTimeStandAloneToo) {
    for (const Moment& moment : moments) {
        SCOPED_TRACE(moment.name);
        EXPECT_EQ(invariantLocale().dateText(Date{moment.days}), moment.date);
        EXPECT_EQ(invariantLocale().timeText(Date{moment.days}), moment.time);
        EXPECT_EQ(germanLocale().dateText(Date{moment.days}), moment.german);
        EXPECT_EQ(germanLocale().timeText(Date{moment.days}), moment.time);
    }
}

constexpr std::uint32_t all = std::numeric_limits<std::uint32_t>::max();

TEST(ExactNumbers, KeepAllTheirDigits) {
    EXPECT_EQ(texts(LongLong{std::numeric_limits<std::int64_t>::min()}),
              "-9223372036854775808 -9223372036854775808");
    EXPECT_EQ(texts(LongLong{0}), "0 0");
    EXPECT_EQ(texts(UnsignedLongLong{std::numeric_limits<std::uint64_t>::max()}),
              "18446744073709551615 18446744073709551615");
    EXPECT_EQ(texts(Currency{std::numeric_limits<std::int64_t>::min()}),
              "-922337203685477.5808 -922337203685477,5808");
    EXPECT_EQ(texts(Currency{125000}), "12.5 12,5");
    EXPECT_EQ(texts(Currency{-5}), "-0.0005 -0,0005");
    EXPECT_EQ(texts(Currency{-10000}), "-1 -1");
    EXPECT_EQ(texts(Decimal{{all, all, all}, 0, false}),
              "79228162514264337593543950335 79228162514264337593543950335");
    EXPECT_EQ(texts(Decimal{{all, all, all}, 28, true}),
              "-7.9228162514264337593543950335 -7,9228162514264337593543950335");
    EXPECT_EQ(texts(Decimal{{1500, 0, 0}, 3, false}), "1.5 1,5");
    EXPECT_EQ(texts(Decimal{{0, 0, 0}, 5, true}), "0 0");
    EXPECT_EQ(texts(Decimal{{0, 1, 0}, 0, false}), "4294967296 4294967296");
}

TEST(ExactNumbers, ConvertLikeTheNumberThatTheyAre) {
    EXPECT_EQ(Variant(LongLong{41}).toLong(), 41);
    EXPECT_EQ(errorNumberOf([] { Variant(LongLong{std::int64_t{1} << 40}).toLong(); }),
              ErrorNumber::overflow);
    EXPECT_EQ(Variant(Currency{25000}).toLong(), 2);
    EXPECT_EQ(Variant(Currency{35000}).toInteger(), 4);
    EXPECT_EQ(Variant(Decimal{{15, 0, 0}, 1, true}).toDouble(), -1.5);
    EXPECT_EQ(Variant(UnsignedLongLong{255}).toByte(), 255);
    EXPECT_TRUE(Variant(Currency{1}).toBoolean());
    EXPECT_TRUE(Variant(Decimal{}).isNumeric());
    EXPECT_EQ(zeroBased(Variant(LongLong{3})), 2);
    EXPECT_EQ(zeroBased(Variant(Currency{15000})), 0);
    EXPECT_EQ(zeroBased(Variant(Decimal{{35, 0, 0}, 1, false})), 2);
    EXPECT_EQ(zeroBased(Variant(UnsignedLongLong{0})), -1);
}

TEST(ExactNumbers, StayOfTheirKindWhenCopiedAndMoved) {
    const Decimal decimal{{1, 2, 3}, 4, true};
    Variant value = decimal;
    Variant copy = value;
    EXPECT_EQ(copy, value);
    const Variant moved = std::move(copy);
    ASSERT_NE(moved.as<Decimal>(), nullptr);
    EXPECT_EQ(*moved.as<Decimal>(), decimal);
    value = Currency{7};
    EXPECT_EQ(*value.as<Currency>(), Currency{7});
    value = u"text";
    value = decimal;
    EXPECT_EQ(*value.as<Decimal>(), decimal);
    EXPECT_NE(Variant(LongLong{1}), Variant(Long{1}));
}

TEST(UnsupportedValues, ConvertToNothing) {
    const Variant value = Unsupported{};
    EXPECT_EQ(errorNumberOf([&] { value.toLong(); }), ErrorNumber::typeMismatch);
    EXPECT_EQ(errorNumberOf([&] { value.toText(); }), ErrorNumber::typeMismatch);
    EXPECT_EQ(errorNumberOf([&] { value.toObject(); }), ErrorNumber::typeMismatch);
    EXPECT_EQ(errorNumberOf([&] { zeroBased(value); }), ErrorNumber::typeMismatch);
    EXPECT_FALSE(value.isNumeric());
}

TEST(UsingLocale, MayEndInAnyOrder) {
    auto first = std::make_unique<UsingLocale>(germanLocale());
    auto second = std::make_unique<UsingLocale>(invariantLocale());
    first.reset();
    EXPECT_EQ(&currentLocale(), &invariantLocale());
    auto third = std::make_unique<UsingLocale>(germanLocale());
    second.reset();
    EXPECT_EQ(&currentLocale(), &germanLocale());
    third.reset();
    EXPECT_EQ(&currentLocale(), &invariantLocale());
}

TEST(UsingLocale, VariantsFollowTheOneInForce) {
    const Variant text = u"1.234,5";
    EXPECT_FALSE(text.isNumeric());
    EXPECT_EQ(errorNumberOf([&] { text.toDouble(); }), ErrorNumber::typeMismatch);
    const UsingLocale german(germanLocale());
    EXPECT_TRUE(text.isNumeric());
    EXPECT_EQ(text.toDouble(), 1234.5);
    EXPECT_EQ(zeroBased(Variant(u"2,0")), 1);
    EXPECT_EQ(Variant(u"29.02.2024").toDate(), Date{45351});
    EXPECT_EQ(Variant(u"45351,5").toDate(), Date{45351.5});
}

} // namespace
} // namespace lumtex
