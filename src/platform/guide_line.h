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

    virtual Single X1() const = 0;
    virtual Single Y1() const = 0;
    virtual Single X2() const = 0;
    virtual Single Y2() const = 0;
    /// Pixels of the parent's surface.
    virtual void letX1(Single x) = 0;
    virtual void letY1(Single y) = 0;
    virtual void letX2(Single x) = 0;
    virtual void letY2(Single y) = 0;
    virtual bool Visible() const = 0;
    virtual void letVisible(bool visible) = 0;
};

} // namespace lumtex
