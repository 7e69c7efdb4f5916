/// \file
/// Changes of the list as events of UI Automation.
#pragma once

#include "activex/spoken_list.h"

namespace lumtex::win32 {

/// Nothing while nobody listens. Whoever listens may do what an event's handler may.
void raiseUiaEvents(const std::shared_ptr<SpokenList>& spoken, const accessibility::Change& change);

} // namespace lumtex::win32
