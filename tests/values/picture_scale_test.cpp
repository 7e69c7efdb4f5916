#include "values/picture_part.h"
#include "values/picture_scale.h"
#include "values/runtime_error.h"

#include <algorithm>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

std::vector<std::int64_t> nearest(std::int64_t target, std::int64_t source) {
    std::vector<std::int64_t> pixels;
    for (std::int64_t i = 0; i < target; ++i)
        pixels.push_back(nearestSource(i, target, source));
    return pixels;
}

TEST(PictureScale, AnEnlargedPictureShowsThePixelWhoseMiddleIsNearest) {
    EXPECT_EQ(nearest(3, 3), (std::vector<std::int64_t>{0, 1, 2}));
    EXPECT_EQ(nearest(6, 3), (std::vector<std::int64_t>{0, 0, 1, 1, 2, 2}));
    EXPECT_EQ(nearest(7, 4), (std::vector<std::int64_t>{0, 0, 1, 1, 2, 3, 3}));
}

TEST(PictureScale, HalfwayBetweenTwoMiddlesTheLowerOneIsShown) {
    EXPECT_EQ(nearest(3, 2), (std::vector<std::int64_t>{0, 0, 1}));
    EXPECT_EQ(nearest(1, 2), (std::vector<std::int64_t>{0}));
    EXPECT_EQ(nearest(5, 4), (std::vector<std::int64_t>{0, 1, 1, 2, 3}));
}

TEST(PictureScale, EveryNearestPixelLiesInThePicture) {
    for (std::int64_t target = 1; target < 40; ++target) {
        for (std::int64_t source = 1; source < 40; ++source) {
            const std::vector<std::int64_t> pixels = nearest(target, source);
            EXPECT_GE(pixels.front(), 0);
            EXPECT_LT(pixels.back(), source);
            EXPECT_TRUE(std::is_sorted(pixels.begin(), pixels.end()));
        }
    }
}

TEST(PictureScale, AShrunkenPictureTakesEveryPixelOnce) {
    for (std::int64_t target = 1; target < 20; ++target) {
        for (std::int64_t source = target; source < 40; ++source) {
            Long next = 5;
            for (std::int64_t i = 0; i < target; ++i) {
                const PixelSpan span = sourceSpan(i, target, 5, source);
                EXPECT_EQ(span.first, next);
                EXPECT_GT(span.last, span.first);
                next = span.last;
            }
            EXPECT_EQ(next, 5 + source);
        }
    }
}

TEST(PictureScale, ABlockIsAveragedChannelByChannel) {
    Bitmap bitmap(2, 2, 0xFF000000U);
    bitmap.at(0, 0) = 0xFF0000FFU;
    bitmap.at(1, 1) = 0x00000000U;
    EXPECT_EQ(averagePixel(bitmap, {0, 2}, {0, 2}), 0xBF000040U);
    EXPECT_EQ(averagePixel(bitmap, {0, 1}, {0, 1}), 0xFF0000FFU);
}

TEST(PicturePart, WhatLiesOutsideThePictureIsCutOffOnBothSides) {
    const PicturePart part = picturePart(Bitmap(10, 10), {100, 200}, {20, 40}, {-5, 8}, {10, 4});
    EXPECT_EQ(part.source, (Rect{0, 8, 5, 10}));
    EXPECT_EQ(part.target, (Rect{110, 200, 120, 220}));
}

TEST(PicturePart, NothingIsLeftOfAPartBesideThePictureOrWithoutExtent) {
    EXPECT_TRUE(picturePart(Bitmap(10, 10), {0, 0}, {5, 5}, {10, 0}, {5, 5}).isEmpty());
    EXPECT_TRUE(picturePart(Bitmap(10, 10), {0, 0}, {5, 5}, {0, -5}, {5, 5}).isEmpty());
    EXPECT_TRUE(picturePart(Bitmap(10, 10), {0, 0}, {0, 5}, {0, 0}, {5, 5}).isEmpty());
    EXPECT_TRUE(picturePart(Bitmap(10, 10), {0, 0}, {5, 5}, {0, 0}, {5, -1}).isEmpty());
    EXPECT_TRUE(picturePart(Bitmap(), {0, 0}, {5, 5}, {0, 0}, {5, 5}).isEmpty());
}

} // namespace
} // namespace lumtex::testing
