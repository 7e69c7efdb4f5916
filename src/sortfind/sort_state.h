/// \file
/// What the last sort left behind: the header's arrow, and whether there was anything to sort.
#pragma once

#include "values/types.h"

namespace lumtex {

struct SortState {
    Long sortColumn = 0;          ///< 0-based; -1 for none
    Byte sortAscending = 0;       ///< 0 points the arrow down, 1 up
    bool hasSortableText = false; ///< whether the column of the last `Sort` held any text but blanks
};

} // namespace lumtex
