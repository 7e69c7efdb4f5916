/// \file
/// How dense the pixels of the screen are.
#pragma once

#include "values/types.h"

namespace lumtex::win32 {

/// Pixels to an inch.
struct PixelDensity {
    Long x;
    Long y;
};

/// As this program sees it: one that says nothing about dense screens gets 96 from the system, and is shown
/// enlarged. The same for as long as the program runs.
PixelDensity screenDensity();

} // namespace lumtex::win32
