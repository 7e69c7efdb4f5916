/// \file
/// Working values of the arithmetic between the list and its bars.
#pragma once

#include "values/types.h"

namespace lumtex {

struct ScrollState {
    Long visibleRowCount = 0;   ///< working result of `VisibleItems`
    bool lastRowHidden = false; ///< set by every `VisibleItems`, cleared only by its last test
    bool scrollPending = false; ///< a bar's `Change` handler waits in `DoEvents`; a running paint gives up
    Long topIndex = 0;          ///< last value given to `TopIndex`, which reads the bar instead
};

} // namespace lumtex
