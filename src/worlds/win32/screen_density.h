/// \file
/// How dense the pixels of the screen are.
#pragma once

#include "values/types.h"

namespace lumtex {

/// Pixels to an inch.
struct PixelDensity {
    Long x;
    Long y;
};

/// As the system tells this program: a program that says nothing about dense screens is told 96, and shown
/// enlarged. The same for as long as the program runs.
PixelDensity screenDensity();

} // namespace lumtex
