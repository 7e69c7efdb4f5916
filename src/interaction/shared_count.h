/// \file
/// Loops that count in a member of the control.
#pragma once

#include "values/types.h"

#include <algorithm>
#include <cstdint>

namespace lumtex {

/// Runs `body` for each value of `counter` from `first` to `last`, until `body` returns False. If code inside
/// the loop changes `counter`, the loop goes on from there: hosts may rely on that. To guarantee an end, it
/// stops some thousand turns after its range. One that would begin further below 0 than that, where there is
/// nothing to find, begins there.
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
