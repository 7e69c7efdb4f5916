/// \file
/// What a search leaves behind for the next.
#pragma once

#include "ordering/number_list.h"
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

struct FindState {
    String findColumnSpec; ///< what `findColumnList` was read from
    String findRowSpec;
    NumberList findColumnList; ///< numbers from 1
    NumberList findRowList;
    Long findRowPos = 0; ///< where a continued search starts: positions in the lists, from 0
    Long findColumnPos = 0;
};

} // namespace lumtex
