/// \file
/// The line shown over the surface while a column is resized.
#pragma once

#include "values/types.h"

namespace lumtex {

/// One pixel wide, black, above the surface and under child windows; it never changes what is drawn there.
class GuideLine {
  public:
    GuideLine() = default;
    GuideLine(const GuideLine&) = delete;
    GuideLine& operator=(const GuideLine&) = delete;
    virtual ~GuideLine() = default;

    /// From the top of the parent's surface down, in its pixels.
    virtual void place(Single x, Single height) = 0;
    virtual void letVisible(bool visible) = 0;
};

} // namespace lumtex
