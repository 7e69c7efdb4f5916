#include "adapters/pictures/picture_image.h"
#include "error_number.h"
#include "sample_images.h"
#include "values/runtime_error.h"

#include <random>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

constexpr std::uint32_t red = 0xFFFF0000U;
constexpr std::uint32_t green = 0xFF00FF00U;
constexpr std::uint32_t blue = 0xFF0000FFU;

Bitmap randomBitmap(Long width, Long height, bool opaque, unsigned seed) {
    std::mt19937 random(seed);
    Bitmap bitmap(width, height);
    for (std::uint32_t& pixel : bitmap.pixels) {
        const std::uint32_t alpha = opaque ? 255 : random() % 256;
        pixel = alpha << 24U;
        for (const unsigned shift : {0U, 8U, 16U})
            pixel |= static_cast<std::uint32_t>(random() % (alpha + 1)) << shift;
    }
    return bitmap;
}

void expectToComeBack(const BitmapPicture& picture) {
    const PictureRef back = pictures::pictureOfImage(imageOfPicture(picture));
    EXPECT_EQ(back->kind(), picture.kind());
    EXPECT_EQ(back->bitmap(), picture.bitmap());
}

TEST(PictureImage, ABitmapIsABitmapFileOf24Bits) {
    Bitmap bitmap(3, 2, red);
    bitmap.at(1, 0) = green;
    bitmap.at(2, 1) = blue;
    EXPECT_EQ(imageOfPicture(BitmapPicture(bitmap)),
              (Image{
                  'B', 'M', 78,  0, 0,   0,   0,   0, 0,   0, 54, 0, 0, 0, // file size, start of the pixels
                  40,  0,   0,   0, 3,   0,   0,   0, 2,   0, 0,  0,       // header size, width, height
                  1,   0,   24,  0, 0,   0,   0,   0, 24,  0, 0,  0,       // planes, bits, compression, size
                  0,   0,   0,   0, 0,   0,   0,   0, 0,   0, 0,  0, 0, 0, 0, 0, // resolution and palette
                  0,   0,   255, 0, 0,   255, 255, 0, 0,   0, 0,  0, // the lower line: red, red, blue
                  0,   0,   255, 0, 255, 0,   0,   0, 255, 0, 0,  0, // the upper one: red, green, red
              }));
}

TEST(PictureImage, AnIconIsAnIconFileOf32BitsWithAMask) {
    Bitmap bitmap(2, 1, red);
    bitmap.at(1, 0) = 0;
    EXPECT_EQ(imageOfPicture(BitmapPicture(bitmap)),
              (Image{
                  0,    0, 1,   0,   1,  0,                     // icon, one picture
                  2,    1, 0,   0,   1,  0, 32, 0,              // size, planes, bits
                  52,   0, 0,   0,   22, 0, 0,  0,              // bytes of it, where they start
                  40,   0, 0,   0,   2,  0, 0,  0, 2,  0, 0, 0, // header size, width, lines with the mask's
                  1,    0, 32,  0,   0,  0, 0,  0, 12, 0, 0, 0, // planes, bits, compression, size
                  0,    0, 0,   0,   0,  0, 0,  0, 0,  0, 0, 0, 0, 0, 0, 0, // resolution and palette
                  0,    0, 255, 255, 0,  0, 0,  0,                          // red, nothing
                  0x40, 0, 0,   0,                                          // the mask hides the second pixel
              }));
}

TEST(PictureImage, ABitmapComesBackPixelByPixel) {
    for (const Long width : {1, 2, 3, 4, 5, 16, 300})
        expectToComeBack(BitmapPicture(randomBitmap(width, 7, true, 1)));
}

TEST(PictureImage, AnIconWithHalfTransparentPixelsComesBack) {
    for (const Long size : {1, 2, 16, 31, 32, 33, 255, 256, 257, 300})
        expectToComeBack(BitmapPicture(randomBitmap(size, size, false, 2)));
}

TEST(PictureImage, AnIconTooLargeForAnIconFileIsABitmapFileWithAlpha) {
    const std::vector<Byte> image = imageOfPicture(BitmapPicture(Bitmap(257, 1, 0x80400000U)));
    EXPECT_EQ(std::string(image.begin(), image.begin() + 2), "BM");
    EXPECT_EQ(pictures::pictureOfImage(imageOfPicture(BitmapPicture(Bitmap(257, 1, red), PictureKind::icon)))
                  ->kind(),
              PictureKind::bitmap);
}

TEST(PictureImage, AnIconWithoutAMaskComesBackAsAnIcon) {
    const BitmapPicture icon(randomBitmap(16, 16, true, 3), PictureKind::icon);
    ASSERT_EQ(icon.kind(), PictureKind::icon);
    expectToComeBack(icon);
}

TEST(PictureImage, AnIconOfNothingComesBack) {
    expectToComeBack(BitmapPicture(Bitmap(9, 9, 0)));
}

TEST(PictureImage, APixelThatIsNotOpaqueMakesAnIcon) {
    EXPECT_EQ(BitmapPicture(Bitmap(2, 2, red)).kind(), PictureKind::bitmap);
    EXPECT_EQ(BitmapPicture(Bitmap(2, 2, 0xFE000000U)).kind(), PictureKind::icon);
}

TEST(PictureImage, APictureWithoutPixelsHasNone) {
    EXPECT_EQ(errorNumberOf([] { imageOfPicture(BitmapPicture(Bitmap(0, 5))); }),
              ErrorNumber::invalidPicture);
}

TEST(PictureImage, ACursorFileGivesAnIcon) {
    Image image = imageOfPicture(BitmapPicture(Bitmap(4, 4, red), PictureKind::icon));
    image[2] = 2;
    EXPECT_EQ(pictures::pictureOfImage(image)->kind(), PictureKind::icon);
}

TEST(PictureImage, OtherFormatsAndNoBytesAreRefused) {
    const Image gif{'G', 'I', 'F', '8', '9', 'a', 1, 0, 1, 0, 0, 0, 0};
    for (const Image& image : {Image{}, Image{'B'}, Image{0, 0, 1}, gif})
        EXPECT_EQ(errorNumberOf([&] { pictures::pictureOfImage(image); }), ErrorNumber::invalidPicture);
}

TEST(PictureImage, NoCutOrChangedByteCrashesTheReader) {
    for (const bool opaque : {true, false}) {
        const Image whole = imageOfPicture(BitmapPicture(randomBitmap(5, 4, opaque, 4)));
        for (std::size_t i = 0; i < whole.size(); ++i) {
            const Image cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(i));
            EXPECT_EQ(errorNumberOf([&] { pictures::pictureOfImage(cut); }), ErrorNumber::invalidPicture)
                << i;
            Image changed = whole;
            changed[i] ^= 0xFFU;
            const Long number = errorNumberOf([&] { pictures::pictureOfImage(changed); });
            EXPECT_TRUE(number == noError || number == ErrorNumber::invalidPicture)
                << i << " gives " << number;
        }
    }
}

TEST(PictureImage, DamagedImagesAreRefused) {
    for (const NamedImage& damaged : damagedImages())
        EXPECT_EQ(errorNumberOf([&] { pictures::pictureOfImage(damaged.image); }),
                  ErrorNumber::invalidPicture)
            << damaged.name;
}

TEST(PictureImage, EachHeaderByteOfAnIconWithSeveralPicturesMayBeAnything) {
    const Image whole = iconOf({iconPart(16), iconPart(32), pngImage()});
    for (std::size_t i = 0; i < 6 + 3 * 16 + 40; ++i) {
        for (const int value : {0, 1, 2, 0x7F, 0x80, 0xFF}) {
            Image changed = whole;
            changed[i] = static_cast<Byte>(value);
            const Long number = errorNumberOf([&] { pictures::pictureOfImage(changed); });
            EXPECT_TRUE(number == noError || number == ErrorNumber::invalidPicture)
                << i << " gives " << number;
        }
    }
}

TEST(PictureImage, ASizeThatTheBytesCannotHoldIsRefusedBeforeItsMemoryIsAskedFor) {
    Image image = imageOfPicture(BitmapPicture(Bitmap(1, 1, red)));
    image[30] = 1; // compressed runs, with a palette of 256 colours: no length follows from the size
    image[28] = 8;
    image.resize(54 + 4 * 256);
    image[10] = 54;
    image[11] = 4;
    image[34] = 2;                     // bytes of runs
    image.insert(image.end(), {0, 1}); // the end of the picture
    const auto letSide = [&](Byte low, Byte high) {
        image[18] = image[22] = low;
        image[19] = image[23] = high;
    };
    letSide(92, 0); // 8464 pixels of 8640 that its 1080 bytes may have
    EXPECT_EQ(errorNumberOf([&] { pictures::pictureOfImage(image); }), noError);
    letSide(93, 0);
    EXPECT_EQ(errorNumberOf([&] { pictures::pictureOfImage(image); }), ErrorNumber::invalidPicture);
    letSide(0xFF, 0x7F);
    EXPECT_EQ(errorNumberOf([&] { pictures::pictureOfImage(image); }), ErrorNumber::invalidPicture);
}

} // namespace
} // namespace lumtex::testing
