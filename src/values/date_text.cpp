/// Dates and text, by rules that no user changes.
#include "values/date_text.h"

#include "values/runtime_error.h"
#include "values/text.h"

#include <array>
#include <chrono>
#include <cmath>
#include <span>

namespace lumtex {

namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr sys_days startDay{year{1899} / 12 / 30};
constexpr int firstYear = 100;
constexpr int lastYear = 9999;
constexpr int firstDay = (sys_days{year{firstYear} / 1 / 1} - startDay).count();
constexpr int lastDay = (sys_days{year{lastYear} / 12 / 31} - startDay).count();

constexpr int secondsPerMinute = 60;
constexpr int secondsPerHour = 60 * secondsPerMinute;
constexpr int secondsPerDay = 24 * secondsPerHour;

/// Two digits up to this one mean a year from 2000 on, above it one of the 20th century.
constexpr int lastShortYear = 29;

struct Field {
    int value = 0;
    int digits = 0;
};

struct Fields {
    std::array<Field, 3> field{};
    int count = 0;
};

/// Two or three numbers of at most four digits with `separator` between them; nothing where it is anything
/// else.
std::optional<Fields> fieldsOf(StringView text, char16_t separator) {
    constexpr int mostDigits = 4;
    Fields fields;
    Field current;
    for (const char16_t unit : text) {
        if (unit >= u'0' && unit <= u'9' && current.digits < mostDigits) {
            current = {current.value * 10 + (unit - u'0'), current.digits + 1};
        } else if (unit == separator && current.digits > 0 && fields.count < 2) {
            fields.field[static_cast<std::size_t>(fields.count++)] = current;
            current = {};
        } else {
            return std::nullopt;
        }
    }
    if (current.digits == 0 || fields.count == 0)
        return std::nullopt;
    fields.field[static_cast<std::size_t>(fields.count++)] = current;
    return fields;
}

/// Where the parts stand between one kind of separator.
struct DateForm {
    char16_t separator;
    std::size_t yearAt;
    std::size_t monthAt;
    std::size_t dayAt;
    bool shortYears;
};

constexpr auto dateForms = std::to_array<DateForm>({
    {u'-', 0, 1, 2, false},
    {u'.', 2, 1, 0, true},
    {u'/', 2, 0, 1, true},
});
constexpr auto dayFirstForms = std::to_array<DateForm>({
    {u'-', 0, 1, 2, false},
    {u'.', 2, 1, 0, true},
    {u'/', 2, 1, 0, true},
});

std::optional<int> dayNumber(Field y, Field m, Field d, bool shortYears) {
    int fullYear = y.value;
    if (y.digits == 2 && shortYears)
        fullYear += fullYear <= lastShortYear ? 2000 : 1900;
    else if (y.digits != 4)
        return std::nullopt;
    if (m.digits > 2 || d.digits > 2 || fullYear < firstYear)
        return std::nullopt;
    const year_month_day date{
        year{fullYear}, month(static_cast<unsigned>(m.value)), day(static_cast<unsigned>(d.value))};
    if (!date.ok())
        return std::nullopt;
    return (sys_days{date} - startDay).count();
}

std::optional<int> datePart(StringView text, DateOrder order) {
    for (const DateForm& form : order == DateOrder::dayFirst ? dayFirstForms : dateForms) {
        const auto fields = fieldsOf(text, form.separator);
        if (fields && fields->count == 3) {
            const auto& field = fields->field;
            return dayNumber(field[form.yearAt], field[form.monthAt], field[form.dayAt], form.shortYears);
        }
    }
    return std::nullopt;
}

std::optional<int> secondsOfTimePart(StringView text) {
    const auto fields = fieldsOf(text, u':');
    if (!fields)
        return std::nullopt;
    const auto& [hours, minutes, seconds] = fields->field;
    if (hours.digits > 2 || minutes.digits > 2 || seconds.digits > 2)
        return std::nullopt;
    if (hours.value > 23 || minutes.value > 59 || seconds.value > 59)
        return std::nullopt;
    return hours.value * secondsPerHour + minutes.value * secondsPerMinute + seconds.value;
}

/// The time of the day counts forward within its day, also before the start day, where days are negative.
Date dateOf(int wholeDays, int seconds) {
    const Double fraction = seconds / static_cast<Double>(secondsPerDay);
    return Date{wholeDays < 0 ? wholeDays - fraction : wholeDays + fraction};
}

void appendPadded(String& text, int value, int width) {
    int unitValue = 1;
    for (int i = 1; i < width; ++i)
        unitValue *= 10;
    for (; unitValue > 0; unitValue /= 10)
        text.push_back(static_cast<char16_t>(u'0' + value / unitValue % 10));
}

void appendDay(String& text, int wholeDays, DateOrder order) {
    const year_month_day date{startDay + days{wholeDays}};
    const auto month = static_cast<int>(static_cast<unsigned>(date.month()));
    const auto day = static_cast<int>(static_cast<unsigned>(date.day()));
    if (order == DateOrder::dayFirst) {
        appendPadded(text, day, 2);
        text.push_back(u'.');
        appendPadded(text, month, 2);
        text.push_back(u'.');
        appendPadded(text, static_cast<int>(date.year()), 4);
        return;
    }
    appendPadded(text, static_cast<int>(date.year()), 4);
    text.push_back(u'-');
    appendPadded(text, month, 2);
    text.push_back(u'-');
    appendPadded(text, day, 2);
}

void appendTime(String& text, int seconds) {
    appendPadded(text, seconds / secondsPerHour, 2);
    text.push_back(u':');
    appendPadded(text, seconds / secondsPerMinute % 60, 2);
    text.push_back(u':');
    appendPadded(text, seconds % secondsPerMinute, 2);
}

/// A moment rounded to whole seconds.
struct Moment {
    int wholeDays;
    int seconds;
};

Moment momentOf(Date value) {
    if (!isDateInRange(value.days))
        throw RuntimeError(ErrorNumber::overflow);
    auto wholeDays = static_cast<int>(value.days);
    auto seconds = static_cast<int>(std::lround(std::fabs(value.days - wholeDays) * secondsPerDay));
    if (seconds == secondsPerDay && wholeDays == lastDay) {
        seconds -= 1;
    } else if (seconds == secondsPerDay) {
        seconds = 0;
        wholeDays += 1;
    }
    return {wholeDays, seconds};
}

} // namespace

bool isDateInRange(Double days) {
    return days > firstDay - 1 && days < lastDay + 1;
}

int yearOf(Date date) {
    if (!isDateInRange(date.days))
        throw RuntimeError(ErrorNumber::overflow);
    return int{year_month_day{startDay + days{static_cast<int>(date.days)}}.year()};
}

std::optional<Date> dateFromText(StringView text) {
    return dateFromText(text, DateOrder::yearFirst);
}

std::optional<Date> dateFromText(StringView text, DateOrder order) {
    text = trimmed(text);
    if (const auto seconds = secondsOfTimePart(text))
        return dateOf(0, *seconds);
    const std::size_t gap = text.find_first_of(u" T");
    const auto wholeDays = datePart(text.substr(0, gap), order);
    if (!wholeDays)
        return std::nullopt;
    if (gap == StringView::npos)
        return dateOf(*wholeDays, 0);
    const StringView time = text.substr(gap + 1);
    const auto seconds = secondsOfTimePart(text[gap] == u' ' ? trimmed(time) : time);
    if (!seconds)
        return std::nullopt;
    return dateOf(*wholeDays, *seconds);
}

String textFromDate(Date value) {
    return textFromDate(value, DateOrder::yearFirst);
}

String textFromDate(Date value, DateOrder order) {
    const Moment moment = momentOf(value);
    String text;
    if (moment.wholeDays != 0) {
        appendDay(text, moment.wholeDays, order);
        if (moment.seconds == 0)
            return text;
        text.push_back(u' ');
    }
    appendTime(text, moment.seconds);
    return text;
}

String dayTextFromDate(Date value, DateOrder order) {
    String text;
    appendDay(text, momentOf(value).wholeDays, order);
    return text;
}

String timeTextFromDate(Date value) {
    String text;
    appendTime(text, momentOf(value).seconds);
    return text;
}

} // namespace lumtex
