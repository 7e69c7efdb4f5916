#include "raster/raster_surface.h"
#include "test_fonts.h"

#include <gtest/gtest.h>

namespace lumtex::testing {

namespace {

TEST(RasterDensity, FontsGrowWithThePixelsOfAnInch) {
    raster::RasterSurface surface(10, 10, testFonts());
    const Single usualHeight = surface.textHeight(u"X");
    const Single usualWidth = surface.textWidth(u"lumtex");
    surface.letPixelsPerInch(std::make_shared<Double>(192));
    EXPECT_EQ(surface.pixelsPerInchX(), 192);
    EXPECT_EQ(surface.pixelsPerInchY(), 192);
    EXPECT_EQ(surface.font().Size, 9.75F);
    EXPECT_NEAR(surface.textHeight(u"X"), 2 * usualHeight, 2);
    EXPECT_NEAR(surface.textWidth(u"lumtex"), 2 * usualWidth, 6);
}

TEST(RasterDensity, SurfacesOfAScreenFollowItTogether) {
    const auto density = std::make_shared<Double>(96);
    raster::RasterSurface first(10, 10, testFonts());
    raster::RasterSurface second(10, 10, testFonts());
    first.letPixelsPerInch(density);
    second.letPixelsPerInch(density);
    const Single usualHeight = first.textHeight(u"X");
    *density = 192;
    EXPECT_NEAR(first.textHeight(u"X"), 2 * usualHeight, 2);
    EXPECT_EQ(second.textHeight(u"X"), first.textHeight(u"X"));
    EXPECT_EQ(second.pixelsPerInchX(), 192);
}

TEST(RasterDensity, WhatWasDrawnStays) {
    raster::RasterSurface surface(4, 4, testFonts());
    surface.pset(1, 2, OLE_COLOR{0x0000FFU});
    surface.letPixelsPerInch(std::make_shared<Double>(144));
    EXPECT_EQ(surface.image().at(1, 2), 0xFFFF0000U);
}

} // namespace
} // namespace lumtex::testing
