/// \file
/// Conversions from floating point to integers: to nearest, ties to even, overflow as a run-time error.
#pragma once

#include "platform/types.h"

namespace lumtex {

/// Each throws RuntimeError 6 where the rounded value does not fit, or the value is not a number.
Long roundToLong(Double value);
Integer roundToInteger(Double value);
Byte roundToByte(Double value);

} // namespace lumtex
