/// \file
/// Conversions from floating point to integers: to nearest, ties to even, overflow as a run-time error.
#pragma once

#include "values/types.h"

namespace lumtex {

/// Each throws RuntimeError 6 if the rounded value does not fit, or the value is not a number.
Long roundToLong(Double value);
Integer roundToInteger(Double value);
Byte roundToByte(Double value);
/// Of two places or counts. Throw RuntimeError 6 if the result is no 32-bit number.
inline Long sumOf(Long a, Long b) {
    return roundToLong(static_cast<Double>(a) + b);
}
inline Long differenceOf(Long a, Long b) {
    return roundToLong(static_cast<Double>(a) - b);
}

} // namespace lumtex
