/// \file
/// The system's clock, the language of its user and the code page of its old texts.
#pragma once

#include "values/variant.h"
#include "words/language.h"

#include <span>

namespace lumtex {

/// How numbers and dates are written is not asked here: conversions follow `currentLocale`.
class SystemLocale {
  public:
    SystemLocale() = default;
    SystemLocale(const SystemLocale&) = delete;
    SystemLocale& operator=(const SystemLocale&) = delete;
    virtual ~SystemLocale() = default;

    /// Today's date and the time of the day.
    virtual Date now() const = 0;

    /// What the user reads and hears; English where the product does not speak the user's language.
    virtual words::Language language() const = 0;

    // Text in the system's ANSI code page, one byte for each UTF-16 code unit. `bytes` and `text` are of the
    // same length. What one byte cannot say becomes "?".

    virtual void toAnsi(StringView text, std::span<Byte> bytes) const = 0;
    virtual void fromAnsi(std::span<const Byte> bytes, std::span<char16_t> text) const = 0;
};

} // namespace lumtex
