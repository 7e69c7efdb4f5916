/// \file
/// The system colours of the software surface.
#pragma once

#include "values/types.h"

#include <array>

namespace lumtex::raster {

/// Indexed by the low byte of a system colour; 0xRRGGBB. The light scheme that the list's own colours were
/// drawn for: warm grey faces, white windows, a blue selection.
// clang-format off
constexpr std::array<std::uint32_t, 31> systemColors{
    0xD4D0C8, // 0 scroll bar
    0x004E98, // 1 desktop
    0x0054E3, // 2 active caption
    0x7A96DF, // 3 inactive caption
    0xFFFFFF, // 4 menu
    0xFFFFFF, // 5 window
    0x000000, // 6 window frame
    0x000000, // 7 menu text
    0x000000, // 8 window text
    0xFFFFFF, // 9 caption text
    0xD4D0C8, // 10 active border
    0xD4D0C8, // 11 inactive border
    0x808080, // 12 application workspace
    0x316AC5, // 13 highlight
    0xFFFFFF, // 14 highlighted text
    0xECE9D8, // 15 button face
    0xACA899, // 16 button shadow
    0xACA899, // 17 grey text
    0x000000, // 18 button text
    0xD8E4F8, // 19 inactive caption text
    0xFFFFFF, // 20 button highlight
    0x716F64, // 21 dark shadow
    0xF1EFE2, // 22 light edge
    0x000000, // 23 tool tip text
    0xFFFFE1, // 24 tool tip background
    0x000000, // 25 unused by the platform
    0x000080, // 26 hot-tracked item
    0x3D95FF, // 27 active caption, far end
    0x9DB9EB, // 28 inactive caption, far end
    0x316AC5, // 29 highlighted menu item
    0xECE9D8, // 30 menu bar
};
// clang-format on

} // namespace lumtex::raster
