/// \file
/// What a search says.
#pragma once

#include "values/types.h"

namespace lumtex {

/// The first hit of a search; all False and 0 without one. Row and column are places in the lists that were
/// searched, counted from 1; only for "*" are they the cell's own numbers.
struct FindResults {
    bool FindSuccessful = false;
    Long FindRow = 0;
    Long FindColumn = 0;
    bool operator==(const FindResults&) const = default;
};

} // namespace lumtex
