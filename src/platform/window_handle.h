/// \file
/// The number of a window, as a host's object gives it.
#pragma once

#include "platform/window.h"
#include "values/rounding.h"
#include "values/variant.h"

namespace lumtex {

/// Handles have 32 significant bits, and hosts tell those above 2^31 with or without a sign. Throws what
/// `Variant::toLong` throws for what is no such number.
inline WindowHandle windowHandleOf(const Variant& number) {
    constexpr Double all = 4294967296.0;
    constexpr Double signedOnes = 2147483648.0;
    const Double value = number.toDouble();
    return value >= signedOnes && value < all ? roundToLong(value - all) : number.toLong();
}

} // namespace lumtex
