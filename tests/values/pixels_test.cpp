#include "values/pixels.h"

#include <gtest/gtest.h>

namespace lumtex {
namespace {

static_assert(premultiplied(0x00FF8001, 128) == 0x80804001, "halves are rounded to the nearest");
static_assert(premultiplied(0xFFFF8001, 0) == 0, "nothing shows");
static_assert(premultiplied(0x00123456, 255) == 0xFF123456, "opaque colours stay");
static_assert(straight(0x80804001) == 0x80FF8002, "rounded, so the least channel is one off");
static_assert(straight(0x00FFFFFF) == 0, "without alpha there is no colour");
static_assert(straight(0x10FF0008) == 0x10FF0080, "a channel above its alpha is full");
static_assert(dibStride(1, 24) == 4 && dibStride(4, 24) == 12 && dibStride(5, 24) == 16 &&
              dibStride(33, 1) == 8);
static_assert(dibStride(0x7FFFFFFF, 32) == 0x1FFFFFFFCU, "no overflow where sizes have 32 bits");

TEST(Pixels, StraightGivesBackWhatWasPremultipliedWithinARounding) {
    for (std::uint32_t alpha = 1; alpha < 256; ++alpha) {
        for (std::uint32_t color = 0; color < 256; ++color) {
            const std::uint32_t there = premultiplied(color, alpha);
            EXPECT_EQ(premultiplied(straight(there), alpha), there) << alpha << " " << color;
        }
    }
}

TEST(Pixels, AMaskHasABitForEachPixelThatDoesNotShow) {
    Bitmap picture(9, 2, 0xFF000000);
    picture.at(0, 0) = 0;
    picture.at(8, 0) = 0x00FFFFFF;
    picture.at(6, 1) = 0;
    picture.at(7, 1) = 0x01000000;
    EXPECT_EQ(maskRows(picture, 16), (std::vector<Byte>{0x80, 0x80, 0x02, 0}));
    EXPECT_EQ(maskRows(picture, 32), (std::vector<Byte>{0x80, 0x80, 0, 0, 0x02, 0, 0, 0}));
    EXPECT_EQ(maskRows({}, 16), std::vector<Byte>{});
}

} // namespace
} // namespace lumtex
