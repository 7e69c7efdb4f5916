/// \file
/// Widgets as a stage.
#pragma once

#include "scenarios/stage.h"

#include <memory>

namespace lumtex::testing {

/// A list of 300 x 200 pixels at (100, 100) of a program's window, read from an empty bag. Its timers tick by
/// hand.
std::unique_ptr<Stage> makeQtStage();

} // namespace lumtex::testing
