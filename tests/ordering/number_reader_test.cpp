/// Dates that a reader met before are known by their texts, and never taken for another's.
#include "ordering/number_rows.h"
#include "ordering/sort_keys.h"
#include "values/fixed_locale.h"
#include "values/locale.h"
#include "values/variant.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

using ordering::numberKey;
using ordering::NumberReader;

/// The invariant one, which counts the dates that it was asked to read.
class CountingLocale final : public Locale {
  public:
    NumberFromText readNumber(StringView text) const override { return rules_.readNumber(text); }
    std::optional<Date> readDate(StringView text) const override {
        ++datesRead;
        return rules_.readDate(text);
    }
    String textOf(LongLong value) const override { return rules_.textOf(value); }
    String textOf(UnsignedLongLong value) const override { return rules_.textOf(value); }
    String textOf(Single value) const override { return rules_.textOf(value); }
    String textOf(Double value) const override { return rules_.textOf(value); }
    String textOf(Currency value) const override { return rules_.textOf(value); }
    String textOf(const Decimal& value) const override { return rules_.textOf(value); }
    String textOf(Date value) const override { return rules_.textOf(value); }
    String dateText(Date date) const override { return rules_.dateText(date); }
    String timeText(Date date) const override { return rules_.timeText(date); }

    mutable int datesRead = 0;

  private:
    const Locale& rules_ = invariantLocale();
};

String digits(Long value) {
    return Variant(value).toText();
}

TEST(NumberReader, GivesEachDateItsOwnKeyHoweverManyItMet) {
    NumberReader reader(cSortDate, 24 * 60);
    // All start with the same eight units, and are so many that places for known ones are shared.
    for (const int turn : {1, 2}) {
        for (Long minute = 0; minute < 24 * 60; ++minute) {
            const String text =
                u"2010-1-1 " + digits(minute / 60) + u":" + digits(100 + minute % 60).substr(1);
            ASSERT_EQ(reader.read(CompactText(text)), numberKey(text, cSortDate)) << turn << " " << minute;
        }
    }
}

TEST(NumberReader, GivesEachDateItsOwnKeyBeyondWhatItsPlacesHold) {
    constexpr int days = 80000;
    NumberReader reader(cSortDate, 1'000'000);
    for (const int turn : {1, 2})
        for (int day = 1; day <= days; ++day)
            ASSERT_EQ(reader.read(CompactText(textFromDate(Date{static_cast<Double>(day)}))), day) << turn;
}

TEST(NumberReader, ReadsTheDaysOfAGenerationHardlyMoreThanOnce) {
    constexpr int first = 32874; // 1 January 1990
    constexpr int days = 13514;
    const CountingLocale locale;
    const UsingLocale inForce(locale);
    NumberReader reader(cSortDate, 1'000'000);
    const int before = locale.datesRead;
    for (int turn = 0; turn < 5; ++turn)
        for (int day = first; day < first + days; ++day)
            ASSERT_EQ(reader.read(CompactText(textFromDate(Date{static_cast<Double>(day)}))), day);
    EXPECT_LE(locale.datesRead - before, days + days / 20);
    EXPECT_GE(locale.datesRead - before, days);
}

TEST(NumberReader, KeepsNothingOfWhatIsNoDate) {
    NumberReader reader(cSortDate, 1);
    for (const int turn : {1, 2}) {
        for (const StringView text : {u"", u"soon", u"2020-02-31 or so, as one says"}) {
            const Double key = reader.read(CompactText(text));
            EXPECT_NE(key, key) << turn;
        }
        EXPECT_EQ(reader.read(CompactText(u"0")), 0.0);
        EXPECT_EQ(reader.read(CompactText(u"2020-02-29")), numberKey(u"2020-02-29", cSortDate));
    }
}

} // namespace
} // namespace lumtex::testing
