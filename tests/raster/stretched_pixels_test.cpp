/// Pixels of a device-independent bitmap, stretched, beside the nearest one looked up for each.
#include "raster/raster_surface.h"
#include "test_fonts.h"
#include "values/picture_scale.h"

#include <algorithm>
#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

constexpr Long width = 30;
constexpr Long height = 25;

TEST(StretchedPixels, AreTheNearestOfTheSource) {
    std::mt19937 dice(9);
    const auto upTo = [&](Long end) { return static_cast<Long>(dice() % static_cast<std::uint32_t>(end)); };
    for (int turn = 0; turn < 400; ++turn) {
        const Dib24 size{1 + upTo(5), 1 + upTo(5), {}};
        const Long stride = (size.width * 3 + 3) / 4 * 4;
        std::vector<Byte> bytes(static_cast<std::size_t>(stride) * static_cast<std::size_t>(size.height));
        for (Byte& byte : bytes)
            byte = static_cast<Byte>(dice());
        const Long left = upTo(50) - 15;
        const Long top = upTo(45) - 15;
        const Long across = 1 + upTo(40);
        const Long down = 1 + upTo(40);
        Bitmap expected(width, height, 0xFFFFFFFFU);
        for (Long y = std::max<Long>(top, 0); y < std::min(top + down, height); ++y) {
            for (Long x = std::max<Long>(left, 0); x < std::min(left + across, width); ++x) {
                const auto row = size.height - 1 - nearestSource(y - top, down, size.height);
                const auto place = row * stride + nearestSource(x - left, across, size.width) * 3;
                const Byte* pixel = bytes.data() + place;
                expected.at(x, y) = 0xFF000000U | static_cast<std::uint32_t>(pixel[2]) << 16U |
                                    static_cast<std::uint32_t>(pixel[1]) << 8U | pixel[0];
            }
        }
        raster::RasterSurface surface(width, height, testFonts());
        surface.stretchDIBits(left, top, across, down, {size.width, size.height, bytes});
        ASSERT_EQ(surface.image(), expected) << "turn " << turn;
    }
}

} // namespace
} // namespace lumtex::testing
