/// Numbers and dates as users write them, and the language that they read.
#include "values/runtime_error.h"
#include "worlds/qt/users_language.h"
#include "worlds/qt/users_locale.h"

#include <gtest/gtest.h>

namespace lumtex::testing {

namespace {

const qt::QtLocale& german() {
    static const qt::QtLocale locale(QLocale(QLocale::German, QLocale::Germany));
    return locale;
}
const qt::QtLocale& american() {
    static const qt::QtLocale locale(QLocale(QLocale::English, QLocale::UnitedStates));
    return locale;
}

constexpr Date leapDay{45351};
constexpr Date leapDayAfternoon{45351.604166666664}; // 14:30

TEST(QtLocale, NumbersHaveTheUsersMarks) {
    EXPECT_EQ(german().textOf(1234.5), u"1234,5");
    EXPECT_EQ(german().readNumber(u"1.234,5").value, 1234.5);
    EXPECT_EQ(american().textOf(1234.5), u"1234.5");
    EXPECT_EQ(american().readNumber(u"1,234.5").value, 1234.5);
    EXPECT_EQ(american().readNumber(u"1;5").outcome, NumberFromText::notANumber);
}

TEST(QtLocale, DatesHaveTheUsersFormWithAllDigitsOfTheYear) {
    EXPECT_EQ(german().dateText(leapDay), u"29.02.2024");
    EXPECT_EQ(american().dateText(leapDay), u"2/29/2024");
}

TEST(QtLocale, TimesHaveTheUsersFormWithSeconds) {
    EXPECT_EQ(german().timeText(leapDayAfternoon), u"14:30:00");
    EXPECT_EQ(american().timeText(leapDayAfternoon), u"2:30:00 PM");
}

TEST(QtLocale, AMomentShowsWhatItHas) {
    EXPECT_EQ(german().textOf(leapDay), u"29.02.2024");
    EXPECT_EQ(german().textOf(leapDayAfternoon), u"29.02.2024 14:30:00");
    EXPECT_EQ(german().textOf(Date{0.25}), u"06:00:00");
    EXPECT_THROW(german().textOf(Date{1e9}), RuntimeError);
    EXPECT_THROW(german().dateText(Date{1e9}), RuntimeError);
}

TEST(QtLocale, ReadsWhatItWrites) {
    for (const QLocale::Language language :
         {QLocale::German, QLocale::English, QLocale::French, QLocale::Finnish, QLocale::Japanese}) {
        const qt::QtLocale locale{QLocale(language)};
        for (const Double days : {45351.0, 45351.604166666664, 0.25, -10.25, 1.0, 36526.0}) {
            const auto read = locale.readDate(locale.textOf(Date{days}));
            ASSERT_TRUE(read.has_value()) << QLocale(language).name().toStdString() << " " << days;
            EXPECT_NEAR(read->days, days, 1e-9) << QLocale(language).name().toStdString();
        }
    }
}

TEST(UsersLanguage, IsTheDearestThatTheProductSpeaks) {
    using words::Language;
    EXPECT_EQ(qt::languageOf({"de-AT", "en"}), Language::german);
    EXPECT_EQ(qt::languageOf({"fr-FR", "de", "en"}), Language::german);
    EXPECT_EQ(qt::languageOf({"en-GB", "de"}), Language::english);
    EXPECT_EQ(qt::languageOf({"fr"}), Language::english);
    EXPECT_EQ(qt::languageOf({"C"}), Language::english);
    EXPECT_EQ(qt::languageOf({}), Language::english);
}

TEST(QtLocale, ReadsTheFormsThatEverybodyKnows) {
    EXPECT_EQ(german().readDate(u"2024-02-29")->days, leapDay.days);
    EXPECT_EQ(german().readDate(u"3/4/2024")->days, german().readDate(u"2024-04-03")->days);
    EXPECT_EQ(american().readDate(u"3/4/2024")->days, american().readDate(u"2024-03-04")->days);
    EXPECT_FALSE(german().readDate(u"soon").has_value());
    EXPECT_FALSE(german().readDate(u"45351").has_value());
}

} // namespace
} // namespace lumtex::testing
