/// \file
/// Pictures as the bytes of a bitmap or icon file.
#pragma once

#include "values/references/picture.h"

#include <vector>

namespace lumtex {

/// A bitmap becomes a bitmap file of 24 bits a pixel, an icon an icon file of 32, all uncompressed. An icon
/// of more than 256 pixels a side, which icon files do not hold, becomes a bitmap file of 32 bits with alpha,
/// from which it comes back as an icon if it makes use of that. Throws RuntimeError 481 for a picture without
/// pixels, 7 for one whose image a Long cannot count.
std::vector<Byte> imageOfPicture(const Picture& picture);

} // namespace lumtex
