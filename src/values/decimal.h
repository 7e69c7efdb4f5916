/// \file
/// Numbers that keep more digits than a Double, or exact decimals.
#pragma once

#include "values/types.h"

#include <array>

namespace lumtex {

/// A signed integer of 64 bits.
struct LongLong {
    std::int64_t value = 0;
    bool operator==(const LongLong&) const = default;
};

/// An unsigned integer of 64 bits.
struct UnsignedLongLong {
    std::uint64_t value = 0;
    bool operator==(const UnsignedLongLong&) const = default;
};

/// An amount with four exact decimals.
struct Currency {
    std::int64_t tenThousandths = 0;
    bool operator==(const Currency&) const = default;
};

/// An integer of 96 bits, divided by a power of ten. Equal only in the same scale: 1.0 is not 1.00.
struct Decimal {
    static constexpr Byte mostDecimals = 28;

    std::array<std::uint32_t, 3> words{}; ///< of the integer without its sign, the lowest first
    Byte scale = 0;                       ///< decimals, up to `mostDecimals`
    bool negative = false;
    bool operator==(const Decimal&) const = default;
};

Decimal toDecimal(Currency value);

/// All digits, zeros at the end of the decimals left out. Zero has no sign.
String textFromDecimal(const Decimal& value, char16_t decimalMark);

/// The nearest Double.
Double toDouble(const Decimal& value);

} // namespace lumtex
