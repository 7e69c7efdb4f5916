/// \file
/// Integer points and rectangles, in pixels.
#pragma once

#include "values/types.h"

namespace lumtex {

struct Point {
    Long x = 0;
    Long y = 0;
    bool operator==(const Point&) const = default;
};

/// The platform's rectangle of four 32-bit integers; Right and Bottom lie just outside.
struct Rect {
    Long Left = 0;
    Long Top = 0;
    Long Right = 0;
    Long Bottom = 0;
    bool operator==(const Rect&) const = default;
};

} // namespace lumtex
