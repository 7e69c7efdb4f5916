#include "worlds/qt/users_locale.h"

#include "worlds/qt/qt_text.h"

#include <QDateTime>
#include <QRegularExpression>

namespace lumtex::qt {

namespace {

constexpr QChar space = u' ';

char16_t markIn(const QString& mark, char16_t without) {
    return mark.isEmpty() ? without : mark.front().unicode();
}

QString dateFormOf(const QLocale& locale) {
    QString form = locale.dateFormat(QLocale::ShortFormat);
    if (!form.contains(QStringLiteral("yyyy")))
        form.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
    return form;
}

/// The short form of a time, with the seconds behind what stands before the minutes.
QString timeFormOf(const QLocale& locale) {
    QString form = locale.timeFormat(QLocale::ShortFormat);
    if (!form.contains(u's'))
        form.replace(QRegularExpression(QStringLiteral("([^hHmaAp' ]*)(mm?)")),
                     QStringLiteral("\\1\\2\\1ss"));
    return form;
}

DateOrder orderOf(const QString& dateForm) {
    return dateForm.indexOf(u'd') < dateForm.indexOf(u'M') ? DateOrder::dayFirst : DateOrder::yearFirst;
}

QDate dayOf(Date date) {
    return QDate::fromString(toQString(dayTextFromDate(date, DateOrder::yearFirst)), Qt::ISODate);
}
QTime timeOf(Date date) {
    return QTime::fromString(toQString(timeTextFromDate(date)), Qt::ISODate);
}

Date dateOf(const QDate& day, const QTime& time) {
    constexpr Double millisecondsPerDay = 24.0 * 60 * 60 * 1000;
    const auto days = static_cast<Double>(QDate(1899, 12, 30).daysTo(day));
    const Double part = time.msecsSinceStartOfDay() / millisecondsPerDay;
    // The part of a day counts away from the start day.
    return {days < 0 ? days - part : days + part};
}

} // namespace

QtLocale::QtLocale(const QLocale& locale)
    : locale_(locale),
      fixed_({markIn(locale.decimalPoint(), u'.'), markIn(locale.groupSeparator(), noGroupMark)},
             orderOf(dateFormOf(locale))),
      dateForm_(dateFormOf(locale)), timeForm_(timeFormOf(locale)) {}

std::optional<Date> QtLocale::readDate(StringView text) const {
    const QString written = toQString(text);
    const QDate startDay(1899, 12, 30);
    if (const QDateTime both = locale_.toDateTime(written, dateForm_ + space + timeForm_); both.isValid())
        return dateOf(both.date(), both.time());
    if (const QDate day = locale_.toDate(written, dateForm_); day.isValid())
        return isDateInRange(dateOf(day, {}).days) ? std::optional(dateOf(day, QTime(0, 0))) : std::nullopt;
    if (const QTime time = locale_.toTime(written, timeForm_); time.isValid())
        return dateOf(startDay, time);
    return fixed_.readDate(text);
}

String QtLocale::textOf(Date value) const {
    // What is shown depends on both parts, rounded as the invariant form rounds them.
    const String plain = textFromDate(value, DateOrder::yearFirst);
    const bool hasDay = plain.find(u'-') != String::npos;
    const bool hasTime = plain.find(u':') != String::npos;
    if (!hasDay)
        return timeText(value);
    return hasTime ? dateText(value) + u" " + timeText(value) : dateText(value);
}

String QtLocale::dateText(Date date) const {
    return fromQString(locale_.toString(dayOf(date), dateForm_));
}

String QtLocale::timeText(Date date) const {
    return fromQString(locale_.toString(timeOf(date), timeForm_));
}

const Locale& usersLocale() {
    static const QLocale system = QLocale::system();
    if (system.language() == QLocale::C)
        return invariantLocale();
    static const QtLocale users(system);
    return users;
}

} // namespace lumtex::qt
