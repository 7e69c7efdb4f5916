/// \file
/// A film as a file of it says: an animated PNG.
#pragma once

#include "camera.h"

#include <filesystem>

namespace lumtex::testing {

/// Every frame as a viewer shows it, put together from what differs between one and the next. Throws
/// std::runtime_error for a file that is no film, or asks for more than films of `scripts/film` do.
std::vector<film::Frame> framesOf(const std::filesystem::path& file);

} // namespace lumtex::testing
