/// \file
/// Pixels as rows of characters, so that a failing test shows both drawings.
#pragma once

#include "values/bitmap.h"
#include "values/geometry.h"

#include <map>
#include <string>
#include <string_view>

namespace lumtex::testing {

/// Which letter stands for which colour, 0xRRGGBB. '?' is kept for colours that have no letter.
using Legend = std::map<char, std::uint32_t>;

/// The usual legend: white, black, red, green, blue, and the yellow that tests clear to.
inline const Legend plainColors{
    {'.', 0xFFFFFF}, {'#', 0x000000}, {'r', 0xFF0000}, {'g', 0x00FF00}, {'b', 0x0000FF}, {'y', 0xFFFF00}};

/// `area` of `bitmap`, one line a row, each ended by a line feed. Pixels outside the bitmap are blanks; a
/// colour without a letter is '?' and is named in a line of its own below.
std::string drawing(const Bitmap& bitmap, const Rect& area, const Legend& legend = plainColors);

/// The whole bitmap.
std::string drawing(const Bitmap& bitmap, const Legend& legend = plainColors);

/// The smallest rectangle that holds every pixel other than `ground` (0xRRGGBB); empty where there is none.
Rect inkOf(const Bitmap& bitmap, std::uint32_t ground = 0xFFFFFF);

} // namespace lumtex::testing
