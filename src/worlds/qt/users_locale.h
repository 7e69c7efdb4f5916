/// \file
/// Numbers and dates as the user of a desktop of Qt writes them.
#pragma once

#include "values/fixed_locale.h"

#include <QLocale>

namespace lumtex::qt {

/// Numbers with the marks of a locale of Qt; dates in its short form with all digits of the year, and times
/// with seconds. Reads these, and what a fixed locale reads, the day first if the short form has it first.
/// Digits are those of ASCII.
class QtLocale final : public Locale {
  public:
    explicit QtLocale(const QLocale& locale);

    NumberFromText readNumber(StringView text) const override { return fixed_.readNumber(text); }
    std::optional<Date> readDate(StringView text) const override;
    String textOf(LongLong value) const override { return fixed_.textOf(value); }
    String textOf(UnsignedLongLong value) const override { return fixed_.textOf(value); }
    String textOf(Single value) const override { return fixed_.textOf(value); }
    String textOf(Double value) const override { return fixed_.textOf(value); }
    String textOf(Currency value) const override { return fixed_.textOf(value); }
    String textOf(const Decimal& value) const override { return fixed_.textOf(value); }
    String textOf(Date value) const override;
    String dateText(Date date) const override;
    String timeText(Date date) const override;

  private:
    QLocale locale_;
    FixedLocale fixed_;
    QString dateForm_;
    QString timeForm_;
};

/// Of whoever runs the program; the invariant one where no country is chosen.
const Locale& usersLocale();

} // namespace lumtex::qt
