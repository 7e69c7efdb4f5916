/// \file
/// Locales whose rules no user changes.
#pragma once

#include "values/date_text.h"
#include "values/locale.h"

namespace lumtex {

/// docs/conversions.md has the rules.
class FixedLocale final : public Locale {
  public:
    FixedLocale(NumberMarks marks, DateOrder order) : marks_(marks), order_(order) {}

    NumberFromText readNumber(StringView text) const override;
    std::optional<Date> readDate(StringView text) const override;
    String textOf(LongLong value) const override;
    String textOf(UnsignedLongLong value) const override;
    String textOf(Single value) const override;
    String textOf(Double value) const override;
    String textOf(Currency value) const override;
    String textOf(const Decimal& value) const override;
    String textOf(Date value) const override;
    String dateText(Date date) const override;
    String timeText(Date date) const override;

  private:
    NumberMarks marks_;
    DateOrder order_;
};

/// "1234.5" and "2024-02-29".
const Locale& invariantLocale();
/// "1234,5" and "29.02.2024"; reads "1.234,5" too.
const Locale& germanLocale();

} // namespace lumtex
