/// \file
/// What the last sort left behind for the header's arrow.
#pragma once

#include "platform/types.h"

namespace lumtex {

struct SortState {
    Long sortColumn = 0;    ///< 0-based; -1 for none
    Byte sortAscending = 0; ///< 0 points the arrow down, 1 up
};

} // namespace lumtex
