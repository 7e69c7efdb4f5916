/// \file
/// The simulated desktop as a stage.
#pragma once

#include "stage.h"

#include <memory>

namespace lumtex::testing {

/// A list of 300 x 200 pixels at (100, 100), read from an empty bag, with the pinned fonts.
std::unique_ptr<Stage> makeHeadlessStage();

} // namespace lumtex::testing
