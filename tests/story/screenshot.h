/// \file
/// Pictures of the screen for people to look at.
#pragma once

#include "values/bitmap.h"

#include <filesystem>

namespace lumtex::testing {

/// As a PNG file; makes its folder. Throws std::runtime_error where it cannot be written.
void writePng(const Bitmap& picture, const std::filesystem::path& file);

} // namespace lumtex::testing
