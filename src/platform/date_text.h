/// \file
/// The span of time that a Date can name.
#pragma once

#include "platform/variant.h"

namespace lumtex {

/// From the start of 100-01-01 to the end of 9999-12-31, which is the span that date texts can show.
bool isDateInRange(Double days);

/// The year that a moment lies in. Throws RuntimeError 6 for one out of range.
int yearOf(Date date);

} // namespace lumtex
