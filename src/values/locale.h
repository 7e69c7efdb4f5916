/// \file
/// How numbers and dates look as texts: a user's settings, or rules that nobody changes.
#pragma once

#include "values/number_text.h"
#include "values/variant.h"

namespace lumtex {

/// One way to write numbers and dates, and to read them. Immutable for its users, and free for all threads.
class Locale {
  public:
    Locale() = default;
    Locale(const Locale&) = delete;
    Locale& operator=(const Locale&) = delete;
    virtual ~Locale() = default;

    virtual NumberFromText readNumber(StringView text) const = 0;
    /// Empty if the text is not a date; a number of days is not one.
    virtual std::optional<Date> readDate(StringView text) const = 0;

    virtual String textOf(LongLong value) const = 0;
    virtual String textOf(UnsignedLongLong value) const = 0;
    virtual String textOf(Single value) const = 0;
    virtual String textOf(Double value) const = 0;
    virtual String textOf(Currency value) const = 0;
    virtual String textOf(const Decimal& value) const = 0;
    /// The date, with the time unless it is midnight; the time alone on the start day. Throws RuntimeError 6
    /// for a moment that no date text can show.
    virtual String textOf(Date value) const = 0;

    /// One part alone, in the short form.
    virtual String dateText(Date date) const = 0;
    virtual String timeText(Date date) const = 0;
};

/// Converts between values and texts on this thread: the innermost `UsingLocale`, without one
/// the user's, and before a world has given one, the invariant one.
const Locale& currentLocale();

/// For a world that knows the user's settings, as it comes up. `locale` must live as long as the program.
void letUsersLocale(const Locale& locale);

/// Puts another locale in force on this thread for as long as it lives. Several may end in any order.
class UsingLocale {
  public:
    /// `locale` must outlive this.
    explicit UsingLocale(const Locale& locale);
    UsingLocale(const UsingLocale&) = delete;
    UsingLocale& operator=(const UsingLocale&) = delete;
    /// On the thread that made it.
    ~UsingLocale();

    const Locale& locale() const { return locale_; }

  private:
    const Locale& locale_;
    UsingLocale* outer_;
};

// Conversions under the current locale, without a Variant around the text. These throw RuntimeError 13 for a
// text that is nothing of the kind, 6 for one out of range.

Double numberFrom(StringView text);
/// A date, or a number of days.
Date dateFrom(StringView text);
/// Empty if `numberFrom` throws.
std::optional<Double> numberIn(StringView text);

} // namespace lumtex
