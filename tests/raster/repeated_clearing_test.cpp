/// A surface that is cleared again and again beside one that is new for each drawing.
#include "raster/raster_surface.h"
#include "test_fonts.h"

#include <array>
#include <random>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

constexpr Long height = 40;
constexpr OLE_COLOR blue = 0xFF0000U;

/// The same drawing for the same seed, some of it outside of the surface.
void draw(Surface& surface, std::uint32_t seed) {
    std::mt19937 dice(seed);
    const auto upTo = [&](Long end) { return static_cast<Long>(dice() % static_cast<std::uint32_t>(end)); };
    const auto x = [&] { return static_cast<Single>(upTo(surface.scaleWidth() + 40) - 20); };
    const auto y = [&] { return static_cast<Single>(upTo(height + 40) - 20); };
    const auto color = [&] { return static_cast<OLE_COLOR>(upTo(0x1000000)); };
    const std::array<Byte, 8> dib{1, 2, 3, 4, 5, 6, 0, 0};
    for (int i = 0; i < 4; ++i) {
        const std::array<Point, 3> points{
            {{upTo(200) - 20, upTo(60) - 10}, {upTo(200), upTo(60)}, {upTo(90), 5}}};
        Rect room{upTo(200) - 20, upTo(60) - 10, upTo(300), upTo(60)};
        Bitmap picture(5, 4, 0x80402010U);
        surface.letForeColor(color());
        switch (upTo(8)) {
        case 0:
            surface.line(x(), y(), x(), y(), color());
            break;
        case 1:
            surface.fillBox(x(), y(), x(), y(), color());
            break;
        case 2:
            surface.polygon(points, color());
            break;
        case 3:
            surface.paintPicture(BitmapPicture(picture), x(), y());
            break;
        case 4:
            surface.stretchDIBits(upTo(100) - 20, upTo(40) - 10, 1 + upTo(90), 1 + upTo(40), {2, 1, dib});
            break;
        case 5:
            surface.print(x(), y(), u"Letters");
            break;
        case 6:
            surface.drawText(u"&Several words of a cell", room, TextFormat::wordEllipsis);
            break;
        default:
            surface.pset(x(), y(), color());
        }
    }
}

class RepeatedClearing : public ::testing::TestWithParam<Long> {};

TEST_P(RepeatedClearing, LeavesNothingOfTheDrawingBefore) {
    raster::RasterSurface kept(GetParam(), height, testFonts());
    OLE_COLOR ground = white;
    for (std::uint32_t seed = 1; seed <= 300; ++seed) {
        if (seed % 7 == 0)
            ground = seed % 14 == 0 ? white : blue;
        raster::RasterSurface fresh(GetParam(), height, testFonts());
        for (raster::RasterSurface* surface : {&kept, &fresh}) {
            surface->letBackColor(ground);
            draw(*surface, seed);
        }
        ASSERT_EQ(kept.image(), fresh.image()) << "drawing " << seed;
    }
}

TEST_P(RepeatedClearing, FindsWhatAnotherSizeShows) {
    raster::RasterSurface kept(GetParam(), height, testFonts());
    for (std::uint32_t seed = 1; seed <= 60; ++seed) {
        draw(kept, seed);
        kept.resize(GetParam() + static_cast<Long>(seed % 3), height);
        kept.Cls();
        kept.pset(0, 0, white);
        ASSERT_EQ(kept.image(), Bitmap(kept.scaleWidth(), height, 0xFFFFFFFFU)) << "drawing " << seed;
    }
}

INSTANTIATE_TEST_SUITE_P(Widths,
                         RepeatedClearing,
                         ::testing::Values(1, 12, 63, 64, 65, 127, 128, 130, 500),
                         [](const auto& width) { return "Of" + std::to_string(width.param); });

} // namespace
} // namespace lumtex::testing
