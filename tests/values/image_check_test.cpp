/// Images are looked at before a decoder sees them.
#include "sample_images.h"
#include "values/image_check.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

TEST(ImageCheck, KnowsEachFormat) {
    Image cursor = iconImage();
    cursor[2] = 2;
    EXPECT_EQ(checkImage(bitmapImage(3, 5)), ImageFormat::bitmap);
    EXPECT_EQ(checkImage(iconImage()), ImageFormat::icon);
    EXPECT_EQ(checkImage(cursor), ImageFormat::cursor);
    EXPECT_EQ(checkImage(pngImage()), ImageFormat::png);
    EXPECT_EQ(checkImage(gifImage()), ImageFormat::gif);
    EXPECT_EQ(checkImage(jpegImage(10, 10, 10)), ImageFormat::jpeg);
}

TEST(ImageCheck, AdmitsWhatPicturesBecome) {
    for (const Long size : {1, 2, 7, 31, 32, 33, 255, 256, 300}) {
        for (const std::uint32_t color : {0xFF000000U, 0x80402010U})
            EXPECT_TRUE(isSoundImage(imageOfPicture(BitmapPicture(Bitmap(size, size, color))))) << size;
    }
}

TEST(ImageCheck, RefusesDamagedImages) {
    for (const NamedImage& damaged : damagedImages())
        EXPECT_FALSE(isSoundImage(damaged.image, freeSettingsPixels)) << damaged.name;
}

TEST(ImageCheck, AdmitsIconsOfSeveralPicturesAndCompressedOnes) {
    EXPECT_TRUE(isSoundImage(iconOf({iconPart(16), iconPart(32), pngImage()})));
    EXPECT_FALSE(isSoundImage(iconOf({iconPart(16), gifImage()})));
}

TEST(ImageCheck, AddsUpThePixelsOfAllPictures) {
    const Image part = iconPart(16); // 256 pixels of 40 + 1024 + 64 bytes
    std::vector<Image> parts{part};
    Image image = iconOf(parts);
    const std::size_t place = image.size() - part.size();
    // Further entries that show the same bytes again: 16 more bytes for 256 more pixels.
    std::size_t entries = 1;
    while (isSoundImage(image)) {
        image.insert(image.begin() + 22, image.begin() + 6, image.begin() + 22);
        ++entries;
        put(image, 4, static_cast<std::uint32_t>(entries), 2);
        for (std::size_t i = 0; i < entries; ++i)
            put(image, 6 + 16 * i + 12, static_cast<std::uint32_t>(place + 16 * (entries - 1)), 4);
    }
    EXPECT_EQ(entries, (image.size() * 8) / 256 + 1);
}

TEST(ImageCheck, EightPixelsToAByteAreTheMost) {
    Image image = bitmapImage(1, 1);
    put(image, 28, 8, 2); // of 256 colours
    put(image, 30, 1, 4); // in runs: no length follows from the size
    put(image, 10, 1078, 4);
    put(image, 34, 2, 4);
    image.resize(1078);
    add(image, {0, 1});                           // the end of the picture
    for (const std::uint32_t side : {92U, 93U}) { // 8464 and 8649 pixels of 8640
        put(image, 18, side, 4);
        put(image, 22, side, 4);
        EXPECT_EQ(isSoundImage(image), side == 92) << side;
        EXPECT_TRUE(isSoundImage(image, 9));
    }
}

TEST(ImageCheck, NeverReadsBehindACutImage) {
    Image bitmap = bitmapImage(5, 3);
    for (const Image& whole :
         {bitmap, iconOf({iconPart(16), pngImage()}), pngImage(), gifImage(), jpegImage(9, 9, 3)}) {
        ASSERT_TRUE(isSoundImage(whole));
        for (std::size_t size = 0; size < whole.size(); ++size)
            EXPECT_FALSE(
                isSoundImage(Image(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size))));
    }
}

} // namespace
} // namespace lumtex::testing
