#include "values/rounding.h"

#include "values/runtime_error.h"

#include <cmath>
#include <limits>

namespace lumtex {

namespace {

/// Not std::nearbyint, whose result a host could change through the rounding mode.
Double roundHalfEven(Double value) {
    const Double whole = std::floor(value);
    const Double rest = value - whole;
    if (rest != 0.5)
        return rest < 0.5 ? whole : whole + 1;
    return std::fmod(whole, 2.0) == 0 ? whole : whole + 1;
}

template <class T>
T roundTo(Double value) {
    const Double rounded = roundHalfEven(value);
    // The comparison is false for what is not a number, too.
    if (!(rounded >= std::numeric_limits<T>::min() && rounded <= std::numeric_limits<T>::max()))
        throw RuntimeError(ErrorNumber::overflow);
    return static_cast<T>(rounded);
}

} // namespace

Long roundToLong(Double value) {
    return roundTo<Long>(value);
}
Integer roundToInteger(Double value) {
    return roundTo<Integer>(value);
}
Byte roundToByte(Double value) {
    return roundTo<Byte>(value);
}

} // namespace lumtex
