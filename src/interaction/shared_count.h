/// \file
/// Loops that count in a member of the control.
#pragma once

#include "platform/types.h"

#include <algorithm>
#include <cstdint>

namespace lumtex {

/// Runs `body` for each value of `counter` from `first` to `last`, until `body` returns False. Whatever runs
/// inside the loop and counts in the same member sends it on to another place: hosts may rely on that. One
/// that is sent back again and again ends after some thousand turns more than its range, and one that begins
/// further below 0, where nothing is to be found, begins there.
template <class Body>
void countShared(Long& counter, Long first, Long last, Body body) {
    constexpr std::int64_t spareTurns = 4096;
    constexpr Long furthestBelow = -256;
    first = std::max(first, furthestBelow);
    std::int64_t turnsLeft = std::int64_t{last} - first + 1 + spareTurns;
    for (counter = first; counter <= last; ++counter) {
        if (turnsLeft-- <= 0 || !body())
            return;
    }
}

} // namespace lumtex
