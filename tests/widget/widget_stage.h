/// \file
/// The widget as a stage.
#pragma once

#include "scenarios/stage.h"

#include <memory>

namespace lumtex::testing {

/// A list of 300 x 200 pixels at (100, 100) of a program's window. Its timers tick by
/// hand, and the log is written by what is connected to its signals.
std::unique_ptr<Stage> makeWidgetStage();

} // namespace lumtex::testing
