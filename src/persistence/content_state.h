/// \file
/// Where a save of the content stands.
#pragma once

#include "values/types.h"

namespace lumtex {

/// The two counters of `ContentSave`, from 1. They are shared by saves that run within one another, as host
/// code at a report may start one; the list must not change meanwhile.
struct ContentState {
    Long saveColumn = 0;
    Long saveRow = 0;
};

} // namespace lumtex
