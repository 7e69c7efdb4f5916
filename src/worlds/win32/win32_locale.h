/// \file
/// Texts of numbers and dates as the system's routines for automation write and read them.
#pragma once

#include "values/locale.h"
#include "words/language.h"
#include "worlds/win32/windows_api.h"

namespace lumtex::win32 {

/// The settings of the user, or those of a caller.
class Win32Locale final : public Locale {
  public:
    explicit Win32Locale(LCID locale) : locale_(locale) {}

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
    String textOf(Date value, unsigned long part) const;

    LCID locale_;
};

/// Of whoever is logged on.
const Locale& win32UsersLocale();

/// English for a language that the product does not speak.
words::Language languageOf(LANGID language);

} // namespace lumtex::win32
