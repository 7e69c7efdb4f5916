/// \file
/// What the texts of a column are compared as.
#pragma once

#include "records/enumerations.h"
#include "values/types.h"

namespace lumtex::ordering {

/// The lower case of each code unit.
String textKey(StringView text);

/// The number, or the date in days, that a text holds for a sort of that type. Throws RuntimeError 13 for a
/// text that is nothing of the kind, 6 for one out of range.
Double numberKey(StringView text, cSortType type);

/// The text form that a pivot is held in, and `numberKey` reads back. A number passes through 15 digits, a
/// date through whole seconds, so that the pivot may be no value of the column. Throws as `numberKey` does.
String pivotText(Double key, cSortType type);

} // namespace lumtex::ordering
