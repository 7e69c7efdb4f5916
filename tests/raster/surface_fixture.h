/// \file
/// A surface of the usual test size and the ways to look at it.
#pragma once

#include "pixels.h"
#include "raster/raster_surface.h"
#include "test_fonts.h"
#include "values/types.h"

#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace lumtex::testing {

/// 12 x 6 pixels, white.
class SurfaceTest : public ::testing::Test {
  protected:
    static constexpr OLE_COLOR red = 0x0000FFU;
    static constexpr OLE_COLOR green = 0x00FF00U;
    static constexpr OLE_COLOR blue = 0xFF0000U;
    static constexpr OLE_COLOR yellow = 0x00FFFFU;

    static constexpr Single infinite = std::numeric_limits<Single>::infinity();
    static constexpr Single notANumber = std::numeric_limits<Single>::quiet_NaN();
    static constexpr Single tooLarge = 2147483648.0F; // one past the largest Long
    static constexpr Single farOut = 1e9F;

    std::string shown() { return drawing(surface.image()); }
    std::string shown(const Rect& area) { return drawing(surface.image(), area); }

    raster::RasterSurface surface{12, 6, testFonts()};
};

} // namespace lumtex::testing
