/// \file
/// The surface of Windows and the software surface side by side.
#pragma once

#include "pixels.h"
#include "raster/raster_surface.h"
#include "same_pixels.h"
#include "worlds/win32/gdi_surface.h"

#include <functional>

#include <gtest/gtest.h>

namespace lumtex::testing {

/// 40 x 30 pixels, white. Text on the software surface is made of the glyphs of Windows.
class SurfacePair : public ::testing::Test {
  protected:
    static constexpr Long width = 40;
    static constexpr Long height = 30;

    /// The same on both.
    void both(const std::function<void(Surface&)>& operation) {
        operation(windows);
        operation(software);
    }
    void clear() {
        both([](Surface& surface) { surface.letBackColor(white); });
    }
    ::testing::AssertionResult agree() { return samePixels(windows.image(), software.image()); }

    win32::GdiSurface windows{width, height, 96, 96};
    raster::RasterSurface software{width, height, raster::FontLibrary::ofSystem()};
};

} // namespace lumtex::testing
