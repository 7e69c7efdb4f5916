/// \file
/// The ANSI code page of worlds that do not ask the system for one.
#pragma once

#include "values/types.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace lumtex {

/// What the bytes from 0x80 to 0x9F stand for, as the code page's registration lists it. The five bytes
/// without a character stand for the control of their own number, so that every byte comes back.
// clang-format off
constexpr std::array<char16_t, 32> windows1252Controls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
// clang-format on

/// All other bytes are the code unit of the same number.
constexpr char16_t fromWindows1252(Byte byte) {
    return byte >= 0x80 && byte < 0xA0 ? windows1252Controls[std::size_t{byte} - 0x80] : char16_t{byte};
}

/// "?" for a code unit that the code page does not have.
constexpr Byte toWindows1252(char16_t unit) {
    if (unit < 0x80 || (unit >= 0xA0 && unit < 0x100))
        return static_cast<Byte>(unit);
    const auto* const found = std::find(windows1252Controls.begin(), windows1252Controls.end(), unit);
    return found == windows1252Controls.end()
               ? Byte{'?'}
               : static_cast<Byte>(0x80 + (found - windows1252Controls.begin()));
}

} // namespace lumtex
