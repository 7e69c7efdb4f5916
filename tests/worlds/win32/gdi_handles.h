/// \file
/// How many drawing objects this process holds.
#pragma once

#include "worlds/win32/windows_api.h"

#include <winternl.h>

namespace lumtex::testing {

/// Counts the entries in use of the table of drawing objects that the system shares with each process. Its
/// own count is not kept up everywhere.
inline int gdiObjectCount() {
    struct Entry { // the same in programs of 32 and 64 bit
        std::uint64_t object;
        std::uint16_t process;
        std::uint16_t count;
        std::uint16_t upper;
        std::uint16_t type; ///< 0: free
        std::uint64_t user;
    };
    constexpr int entries = 65536;
    constexpr std::size_t tableOffset = sizeof(void*) == 8 ? 0xF8 : 0x94;
    const auto* environment = reinterpret_cast<const char*>(NtCurrentTeb()->ProcessEnvironmentBlock);
    const auto* table = *reinterpret_cast<const Entry* const*>(environment + tableOffset);
    int count = 0;
    for (int i = 0; i < entries; ++i)
        count += table[i].type != 0 ? 1 : 0;
    return count;
}

} // namespace lumtex::testing
