#include "sample_images.h"
#include "values/picture_image.h"
#include "values/runtime_error.h"
#include "worlds/win32/ole_picture.h"
#include "worlds/win32/win32_runtime.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

class PictureImages : public ::testing::Test {
  protected:
    PictureImages() { CoInitialize(nullptr); }
    ~PictureImages() override { CoUninitialize(); }

    Long failureOf(const std::vector<Byte>& image) {
        try {
            runtime.pictureOfImage(image);
        } catch (const RuntimeError& error) {
            return error.number();
        }
        return 0;
    }

    win32::Win32Runtime runtime{GetModuleHandleW(nullptr)};
};

Bitmap pattern(Long width, Long height) {
    Bitmap bitmap(width, height);
    for (Long y = 0; y < height; ++y) {
        for (Long x = 0; x < width; ++x)
            bitmap.at(x, y) = 0xFF000000U | static_cast<std::uint32_t>(x * 7919 + y * 104729) % 0xFFFFFFU;
    }
    return bitmap;
}

TEST_F(PictureImages, ABitmapComesBackWithItsKindAndPixels) {
    for (const Long width : {1, 2, 3, 4, 17}) {
        const BitmapPicture picture(pattern(width, 5));
        const PictureRef back = runtime.pictureOfImage(runtime.imageOfPicture(picture));
        EXPECT_EQ(back->kind(), PictureKind::bitmap);
        EXPECT_EQ(back->bitmap(), picture.bitmap()) << width;
    }
}

TEST_F(PictureImages, AnIconComesBackWithItsKindAndTransparency) {
    Bitmap bitmap = pattern(16, 16);
    for (Long y = 0; y < 16; ++y)
        bitmap.at(3, y) = 0;
    const BitmapPicture picture(bitmap);
    ASSERT_EQ(picture.kind(), PictureKind::icon);
    const PictureRef back = runtime.pictureOfImage(runtime.imageOfPicture(picture));
    EXPECT_EQ(back->kind(), PictureKind::icon);
    EXPECT_EQ(back->bitmap(), bitmap);
}

TEST_F(PictureImages, APictureOfTheSystemIsWrittenAgainAsItWasRead) {
    const std::vector<Byte> image = runtime.imageOfPicture(BitmapPicture(pattern(9, 4)));
    EXPECT_EQ(runtime.imageOfPicture(*runtime.pictureOfImage(image)), image);
}

TEST_F(PictureImages, WhatIsNoBitmapAndNoIconThrows481) {
    const std::vector<Byte> other{0x89, 'P', 'N', 'G', 13, 10, 26, 10};
    const std::vector<Byte> bare{'B', 'M'};
    const std::vector<Byte> bareIcon{0, 0, 1, 0};
    for (const std::vector<Byte>& image : {std::vector<Byte>(), other, bare, bareIcon})
        EXPECT_EQ(failureOf(image), ErrorNumber::invalidPicture) << image.size();
}

TEST_F(PictureImages, AnImageThatDeclaresMorePixelsThanItsBytesCanHoldThrows481) {
    std::vector<Byte> image = runtime.imageOfPicture(BitmapPicture(pattern(4, 4)));
    image[20] = 0x40; // a width of four millions
    EXPECT_EQ(failureOf(image), ErrorNumber::invalidPicture);
}

TEST_F(PictureImages, DamagedImagesNeverReachTheSystem) {
    for (const NamedImage& damaged : damagedImages()) {
        EXPECT_EQ(failureOf(damaged.image), ErrorNumber::invalidPicture) << damaged.name;
        EXPECT_THROW(win32::loadOlePicture(damaged.image), RuntimeError) << damaged.name;
    }
}

TEST_F(PictureImages, EachHeaderByteMayBeAnything) {
    const Image images[] = {iconOf({iconPart(16), iconPart(32), pngImage()}),
                            iconImage(16),
                            imageOfPicture(BitmapPicture(Bitmap(9, 9, 0xFF102030U))),
                            imageOfPicture(BitmapPicture(Bitmap(300, 2, 0x80102030U)))};
    for (const Image& whole : images) {
        const std::size_t headers = std::min<std::size_t>(whole.size(), 150);
        for (std::size_t i = 0; i < headers; ++i) {
            for (const int value : {0, 1, 2, 0x7F, 0x80, 0xFF}) {
                Image changed = whole;
                changed[i] = static_cast<Byte>(value);
                const Long number = failureOf(changed);
                EXPECT_TRUE(number == 0 || number == ErrorNumber::invalidPicture) << i << " gives " << number;
            }
        }
    }
}

TEST_F(PictureImages, OtherFormatsPassTheSystemsLoaderAlone) {
    for (const Image& image : {pngImage(), gifImage()}) {
        EXPECT_EQ(failureOf(image), ErrorNumber::invalidPicture) << "no content file holds them";
        EXPECT_FALSE(win32::loadOlePicture(image)->bitmap().pixels.empty());
    }
}

TEST_F(PictureImages, APictureWithoutPixelsThrows481) {
    EXPECT_THROW(runtime.imageOfPicture(BitmapPicture(Bitmap())), RuntimeError);
}

} // namespace
} // namespace lumtex::testing
