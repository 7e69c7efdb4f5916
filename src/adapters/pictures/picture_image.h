/// \file
/// Pictures from the bytes of a bitmap or icon file.
#pragma once

#include "values/picture_image.h"

#include <span>

namespace lumtex::pictures {

/// Reads bitmap, icon and cursor files, of an icon file its best picture; the last two give icons. Throws
/// RuntimeError 481 for anything else, and for an image that declares more than eight pixels to a byte.
PictureRef pictureOfImage(std::span<const Byte> image);

} // namespace lumtex::pictures
