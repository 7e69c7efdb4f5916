/// \file
/// The span of time that a Date can name, and its texts in an order of one's choice.
#pragma once

#include "values/variant.h"

namespace lumtex {

/// From the start of 100-01-01 to the end of 9999-12-31, which is the span that date texts can show.
bool isDateInRange(Double days);

/// The year of a moment. Throws RuntimeError 6 for one out of range.
int yearOf(Date date);

/// How a date is written, and which number of "3/4/2024" is the day.
enum class DateOrder : Byte {
    yearFirst, ///< "2024-04-03"; the month comes first between slashes
    dayFirst,  ///< "03.04.2024"; the day comes first between slashes
};

/// As the functions without an order, which put the year first.
std::optional<Date> dateFromText(StringView text, DateOrder order);
String textFromDate(Date value, DateOrder order);

/// One part alone, rounded as the whole is. Both throw RuntimeError 6 for a moment out of range.
String dayTextFromDate(Date value, DateOrder order);
String timeTextFromDate(Date value);

} // namespace lumtex
