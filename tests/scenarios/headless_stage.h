/// \file
/// The simulated desktop as a stage.
#pragma once

#include "stage.h"
#include "worlds/headless/desktop.h"

#include <functional>
#include <memory>

namespace lumtex::testing {

/// A list of 300 x 200 pixels at (100, 100), read from an empty bag, with the pinned fonts.
///
/// `worldAround`, if there is one, makes a world that hands on to the desktop; the list is made in that.
std::unique_ptr<Stage>
makeHeadlessStage(const std::function<std::unique_ptr<World>(headless::Desktop&)>& worldAround = {});

} // namespace lumtex::testing
