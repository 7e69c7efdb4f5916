/// Letters over what is there, four pixels at a time, beside the sum for each byte.
#include "raster/canvas.h"

#include <random>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

using raster::Canvas;
using raster::Mask;
using raster::Pixel;

constexpr Long width = 23;
constexpr Long height = 9;

Byte byteOf(Pixel pixel, unsigned which) {
    return static_cast<Byte>(pixel >> which * 8U);
}

/// Each byte rounded to the nearest, as people would reckon.
Pixel mixtureOf(Pixel under, Pixel color, Byte coverage) {
    Pixel result = 0;
    for (unsigned which = 0; which < 4; ++which) {
        const int sum = byteOf(under, which) * (255 - coverage) + byteOf(color, which) * coverage;
        result |= static_cast<Pixel>((2 * sum + 255) / 510) << which * 8U;
    }
    return result;
}

Pixel opaque(std::mt19937& dice) {
    return static_cast<Pixel>(dice()) | 0xFF000000U;
}

Mask randomMask(std::mt19937& dice) {
    Mask mask(static_cast<Long>(1 + dice() % 9), static_cast<Long>(1 + dice() % 5));
    for (Long y = 0; y < mask.height; ++y) {
        for (Long x = 0; x < mask.width; ++x)
            mask.row(y)[x] = static_cast<Byte>(dice() % 4 == 0 ? 0 : dice() % 4 == 0 ? 255 : dice());
    }
    return mask;
}

TEST(BlendedMask, EveryCoverageMixesEveryByteToTheNearest) {
    for (int under = 0; under < 256; ++under) {
        Bitmap bitmap(256, 1, 0xFF000000U | static_cast<Pixel>(under * 0x010101));
        Mask mask(256, 1);
        for (Long x = 0; x < 256; ++x)
            mask.row(0)[x] = static_cast<Byte>(x);
        const Canvas canvas{bitmap.pixels.data(), bitmap.width, bitmap.height};
        raster::blendMask(canvas, canvas.bounds(), {0, 0}, mask, 0xFF00FF80U);
        for (Long x = 0; x < 256; ++x) {
            ASSERT_EQ(bitmap.at(x, 0),
                      mixtureOf(0xFF000000U | static_cast<Pixel>(under * 0x010101), 0xFF00FF80U, Byte(x)))
                << under << " under coverage " << x;
        }
    }
}

TEST(BlendedMask, ChangesItsOwnPixelsInsideTheClipAlone) {
    std::mt19937 dice(5);
    for (int turn = 0; turn < 3000; ++turn) {
        Bitmap bitmap(width, height);
        for (Pixel& pixel : bitmap.pixels)
            pixel = opaque(dice);
        const Canvas canvas{bitmap.pixels.data(), width, height};
        const Mask mask = randomMask(dice);
        const Pixel color = opaque(dice);
        const Point at{static_cast<Long>(dice() % (width + 12)) - 6,
                       static_cast<Long>(dice() % (height + 8)) - 4};
        const Rect clip = turn % 2 == 0 ? canvas.bounds()
                                        : Rect{static_cast<Long>(dice() % 12),
                                               static_cast<Long>(dice() % 5),
                                               static_cast<Long>(12 + dice() % 12),
                                               static_cast<Long>(5 + dice() % 5)};
        Bitmap expected = bitmap;
        for (Long y = 0; y < mask.height; ++y) {
            for (Long x = 0; x < mask.width; ++x) {
                const Point to{at.x + x, at.y + y};
                if (to.x >= clip.Left && to.x < clip.Right && to.y >= clip.Top && to.y < clip.Bottom)
                    expected.at(to.x, to.y) = mixtureOf(bitmap.at(to.x, to.y), color, mask.row(y)[x]);
            }
        }
        raster::blendMask(canvas, clip, at, mask, color);
        ASSERT_EQ(bitmap, expected) << "turn " << turn;
    }
}

} // namespace
} // namespace lumtex::testing
