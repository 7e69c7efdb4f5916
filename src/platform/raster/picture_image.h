/// \file
/// Pictures as the bytes of a bitmap or icon file.
#pragma once

#include "platform/picture.h"

#include <span>
#include <vector>

namespace lumtex {

/// A bitmap becomes a bitmap file of 24 bits a pixel, an icon an icon file of 32, all uncompressed. An icon
/// of more than 256 pixels a side, which icon files do not hold, becomes a bitmap file of 32 bits with alpha,
/// from which it comes back as an icon if it makes use of that. Throws RuntimeError 481 for a picture without
/// pixels, 7 for one whose image a Long cannot count.
std::vector<Byte> imageOfPicture(const Picture& picture);

/// Reads bitmap, icon and cursor files, of an icon file its best picture; the last two give icons. Throws
/// RuntimeError 481 for anything else, and for an image that declares more than eight pixels to a byte.
PictureRef pictureOfImage(std::span<const Byte> image);

} // namespace lumtex
