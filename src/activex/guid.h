/// \file
/// Identifiers as the system wants them.
#pragma once

#include "automation/identifiers.h"
#include "worlds/win32/windows_api.h"

namespace lumtex::win32 {

namespace detail {

constexpr unsigned digitOf(char c) {
    return static_cast<unsigned>(c <= '9' ? c - '0' : c - 'a' + 10);
}

constexpr unsigned long hexNumber(std::string_view digits) {
    unsigned long number = 0;
    for (const char c : digits)
        number = number * 16 + digitOf(c);
    return number;
}

} // namespace detail

/// `text` is in lower case, without braces.
constexpr GUID guidFrom(std::string_view text) {
    GUID guid{detail::hexNumber(text.substr(0, 8)),
              static_cast<unsigned short>(detail::hexNumber(text.substr(9, 4))),
              static_cast<unsigned short>(detail::hexNumber(text.substr(14, 4))),
              {}};
    for (std::size_t i = 0; i < 8; ++i)
        guid.Data4[i] =
            static_cast<unsigned char>(detail::hexNumber(text.substr(i < 2 ? 19 + 2 * i : 20 + 2 * i, 2)));
    return guid;
}

/// The identifier of a name of the type library, see `identifiers`.
constexpr GUID guidOf(std::string_view name) {
    return guidFrom(automation::uuidOf(name));
}

/// "{5BDC0D33-...}"
String textOfGuid(const GUID& guid);

} // namespace lumtex::win32
