/// \file
/// Reading and writing pictures as files.
#pragma once

#include "values/references/picture.h"

#include <filesystem>
#include <span>

namespace lumtex::pictures {

/// BMP, GIF, JPEG, PNG, ICO and whatever else the picture library knows. Throws RuntimeError 53 if there
/// is no such file, 481 if it holds no picture.
PictureRef loadPicture(const std::filesystem::path& file);
PictureRef loadPicture(std::span<const Byte> bytes);

/// Throws RuntimeError 57 if the file cannot be written.
void savePng(const Bitmap& bitmap, const std::filesystem::path& file);

} // namespace lumtex::pictures
