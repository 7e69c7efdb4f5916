/// \file
/// Real windows as a stage.
#pragma once

#include "scenarios/stage.h"

#include <memory>

namespace lumtex::testing {

/// A list of 300 x 200 pixels at (100, 100) of a program's window, read from an empty bag. Throws
/// std::runtime_error where there is no display. One at a time.
std::unique_ptr<Stage> makeWindowsStage();

} // namespace lumtex::testing
