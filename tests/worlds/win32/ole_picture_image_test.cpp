/// Pictures of hosts go into files as the system itself stores them.
#include "values/picture_image.h"
#include "worlds/win32/ole_picture.h"
#include "worlds/win32/ole_picture_image.h"
#include "worlds/win32/win32_runtime.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

using Image = std::vector<Byte>;

class OlePictureImage : public ::testing::Test {
  protected:
    OlePictureImage() { CoInitialize(nullptr); }
    ~OlePictureImage() override { CoUninitialize(); }

    /// A picture object that a host made of a bitmap of its own.
    static PictureRef hosts(HBITMAP bitmap) {
        PICTDESC description{};
        description.cbSizeofstruct = sizeof description;
        description.picType = PICTYPE_BITMAP;
        description.bmp.hbitmap = bitmap;
        void* made = nullptr;
        EXPECT_EQ(OleCreatePictureIndirect(&description, IID_IPictureDisp, TRUE, &made), S_OK);
        return win32::pictureFrom(
            win32::ComRef<IPictureDisp>::adopting(static_cast<IPictureDisp*>(made)).get());
    }

    /// One line of `bits` a pixel with these bytes, filled up to four.
    static HBITMAP bitmapOf(LONG width, WORD bits, const std::vector<RGBQUAD>& colors, const Image& line) {
        struct {
            BITMAPINFOHEADER header;
            RGBQUAD colors[256];
        } info{};
        info.header.biSize = sizeof info.header;
        info.header.biWidth = width;
        info.header.biHeight = 1;
        info.header.biPlanes = 1;
        info.header.biBitCount = bits;
        std::copy(colors.begin(), colors.end(), info.colors);
        void* memory = nullptr;
        HBITMAP made = CreateDIBSection(
            nullptr, reinterpret_cast<BITMAPINFO*>(&info.header), DIB_RGB_COLORS, &memory, nullptr, 0);
        std::copy(line.begin(), line.end(), static_cast<Byte*>(memory));
        return made;
    }

    static int depthOf(const Image& image) { return image.at(28); }

    win32::Win32Runtime runtime{GetModuleHandleW(nullptr)};
};

TEST_F(OlePictureImage, ABitmapKeepsItsDepthAndItsPalette) {
    const PictureRef picture =
        hosts(bitmapOf(3, 8, {{0, 0, 0, 0}, {30, 20, 10, 0}, {3, 2, 1, 0}}, {2, 1, 2, 0}));
    const Image image = runtime.imageOfPicture(*picture);
    ASSERT_GT(image.size(), 54U + 4 * 256);
    EXPECT_EQ(depthOf(image), 8);
    EXPECT_EQ(Image(image.begin() + 58, image.begin() + 65), (Image{30, 20, 10, 0, 3, 2, 1}));
    EXPECT_EQ(Image(image.end() - 4, image.end() - 1), (Image{2, 1, 2}));
    EXPECT_EQ(runtime.pictureOfImage(image)->bitmap(), picture->bitmap());
}

TEST_F(OlePictureImage, EveryDepthComesBackPixelByPixel) {
    const std::vector<RGBQUAD> two{{40, 80, 120, 0}, {5, 6, 7, 0}};
    for (const WORD bits : {WORD{1}, WORD{4}, WORD{8}, WORD{16}, WORD{24}}) {
        const PictureRef picture = hosts(bitmapOf(1, bits, two, {0, 1, 0, 0}));
        const Image image = runtime.imageOfPicture(*picture);
        EXPECT_EQ(depthOf(image), bits);
        EXPECT_EQ(runtime.pictureOfImage(image)->bitmap(), picture->bitmap()) << bits;
    }
}

TEST_F(OlePictureImage, AnIconKeepsAllItsImages) {
    const auto part = [](Long size, std::uint32_t color) {
        return imageOfPicture(BitmapPicture(Bitmap(size, size, color), PictureKind::icon));
    };
    const Image small = part(16, 0xFF204060U);
    const Image large = part(32, 0xFF602040U);
    Image image{0, 0, 1, 0, 2, 0};
    std::size_t offset = 6 + 2 * 16;
    for (const Image& one : {small, large}) {
        image.insert(image.end(), one.begin() + 6, one.begin() + 18);
        for (unsigned shift = 0; shift < 32; shift += 8)
            image.push_back(static_cast<Byte>(offset >> shift));
        offset += one.size() - 22;
    }
    for (const Image& one : {small, large})
        image.insert(image.end(), one.begin() + 22, one.end());
    const PictureRef picture = win32::loadOlePicture(image);
    EXPECT_EQ(picture->kind(), PictureKind::icon);
    EXPECT_EQ(runtime.imageOfPicture(*picture), image);
}

TEST_F(OlePictureImage, APictureOfOursIsNoneOfTheSystems) {
    EXPECT_TRUE(win32::imageOfHostsPicture(BitmapPicture(Bitmap(2, 2, 0xFF000000U))).empty());
}

} // namespace
} // namespace lumtex::testing
