#include "gdi_handles.h"
#include "values/runtime_error.h"
#include "worlds/win32/ole_picture.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

Bitmap fourColors() {
    Bitmap bitmap(2, 2, 0xFFFF0000U);
    bitmap.at(1, 0) = 0xFF00FF00U;
    bitmap.at(0, 1) = 0xFF0000FFU;
    bitmap.at(1, 1) = 0xFF123456U;
    return bitmap;
}

/// 16 x 16: transparent on the left, opaque in the middle, half transparent on the right.
Bitmap stripes() {
    Bitmap bitmap(16, 16, 0);
    for (Long y = 0; y < 16; ++y) {
        for (Long x = 4; x < 16; ++x)
            bitmap.at(x, y) = x < 10 ? 0xFF204060U : 0x80402010U;
    }
    return bitmap;
}

/// Bitmap file of 24 bits per pixel: red, green over blue, white.
std::vector<Byte> bitmapFile() {
    std::vector<Byte> file{'B', 'M', 70, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0, 40,
                           0,   0,   0,  2, 0, 0, 0, 2, 0, 0, 0,  1, 0, 24};
    file.resize(54);
    for (const int byte : {255, 0, 0, 255, 255, 255, 0, 0, 0, 0, 255, 0, 255, 0, 0, 0})
        file.push_back(static_cast<Byte>(byte));
    return file;
}

class OlePictureTest : public ::testing::Test {
  protected:
    OlePictureTest() { CoInitialize(nullptr); }
    ~OlePictureTest() override { CoUninitialize(); }

    static PictureRef plain() { return std::make_shared<BitmapPicture>(fourColors()); }
};

TEST_F(OlePictureTest, NothingStaysNothing) {
    EXPECT_EQ(win32::pictureFrom(nullptr), nullptr);
    EXPECT_FALSE(win32::toIPicture(nullptr));
    EXPECT_FALSE(win32::toIPicture(std::make_shared<BitmapPicture>(Bitmap())));
}

TEST_F(OlePictureTest, ABitmapGoesToAHostAndBackUnchanged) {
    PictureRef picture = plain();
    const win32::ComRef<IPictureDisp> object = win32::toIPicture(picture);
    ASSERT_TRUE(object);
    EXPECT_EQ(win32::pictureFrom(object.get()), picture) << "the very same while somebody holds it";
    short type = 0;
    object.as<IPicture>()->get_Type(&type);
    EXPECT_EQ(type, PICTYPE_BITMAP);
}

TEST_F(OlePictureTest, AHostsBitmapShowsItsPixelsAndItsSize) {
    const PictureRef picture = win32::loadOlePicture(bitmapFile());
    EXPECT_EQ(picture->kind(), PictureKind::bitmap);
    Bitmap expected(2, 2, 0xFFFF0000U);
    expected.at(1, 0) = 0xFF00FF00U;
    expected.at(0, 1) = 0xFF0000FFU;
    expected.at(1, 1) = 0xFFFFFFFFU;
    EXPECT_EQ(picture->bitmap(), expected);
    EXPECT_NEAR(picture->Width(), 53, 1); // 2 of 96 pixels per inch, in hundredths of a millimetre
    EXPECT_NEAR(picture->Height(), 53, 1);
}

TEST_F(OlePictureTest, TheSameObjectIsTheSamePicture) {
    const PictureRef picture = win32::loadOlePicture(bitmapFile());
    const win32::ComRef<IPictureDisp> object = win32::toIPicture(picture);
    EXPECT_EQ(win32::pictureFrom(object.get()), picture);
    EXPECT_EQ(win32::toIPicture(picture).get(), object.get());
}

TEST_F(OlePictureTest, APictureWithTransparentPartsIsAnIconForTheHost) {
    const auto picture = std::make_shared<BitmapPicture>(stripes());
    const win32::ComRef<IPicture> object = win32::toIPicture(picture).as<IPicture>();
    short type = 0;
    object->get_Type(&type);
    EXPECT_EQ(type, PICTYPE_ICON);
}

/// The object is handed over as bytes, so that nothing of where it came from is known.
TEST_F(OlePictureTest, AnIconComesBackWithItsTransparency) {
    const auto picture = std::make_shared<BitmapPicture>(stripes());
    const win32::ComRef<IPicture> object = win32::toIPicture(picture).as<IPicture>();
    OLE_HANDLE handle = 0;
    ASSERT_EQ(object->get_Handle(&handle), S_OK);
    PICTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.picType = PICTYPE_ICON;
    description.icon.hicon =
        CopyIcon(reinterpret_cast<HICON>(static_cast<INT_PTR>(static_cast<int>(handle))));
    void* made = nullptr;
    ASSERT_EQ(OleCreatePictureIndirect(&description, IID_IPictureDisp, TRUE, &made), S_OK);
    const auto stranger = win32::ComRef<IPictureDisp>::adopting(static_cast<IPictureDisp*>(made));
    const PictureRef back = win32::pictureFrom(stranger.get());
    ASSERT_NE(back, picture);
    EXPECT_EQ(back->kind(), PictureKind::icon);
    ASSERT_EQ(back->bitmap().width, 16);
    ASSERT_EQ(back->bitmap().height, 16);
    EXPECT_EQ(back->bitmap().at(0, 5), 0U);
    EXPECT_EQ(back->bitmap().at(7, 5), 0xFF204060U);
    const std::uint32_t half = back->bitmap().at(12, 5);
    EXPECT_NEAR(static_cast<int>(half >> 24U), 0x80, 1);
    EXPECT_NEAR(static_cast<int>((half >> 16U) & 0xFFU), 0x40, 1);
    EXPECT_NEAR(static_cast<int>((half >> 8U) & 0xFFU), 0x20, 1);
    EXPECT_NEAR(static_cast<int>(half & 0xFFU), 0x10, 1);
}

TEST_F(OlePictureTest, AnObjectOfOursKeepsThePictureAndLetsGoOfItAtItsEnd) {
    PictureRef picture = plain();
    const std::weak_ptr<const Picture> watched = picture;
    win32::ComRef<IPictureDisp> object = win32::toIPicture(picture);
    EXPECT_EQ(win32::toIPicture(picture).get(), object.get());
    picture.reset();
    EXPECT_FALSE(watched.expired());
    object = {};
    EXPECT_TRUE(watched.expired());
}

TEST_F(OlePictureTest, OursLetsGoOfTheObjectAtItsEnd) {
    PictureRef picture = win32::loadOlePicture(bitmapFile());
    const win32::ComRef<IPictureDisp> object = win32::toIPicture(picture);
    object->AddRef();
    const ULONG before = object->Release();
    picture.reset();
    object->AddRef();
    EXPECT_LT(object->Release(), before);
}

TEST_F(OlePictureTest, AnObjectWithoutAPictureHasNoPixels) {
    PICTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.picType = PICTYPE_NONE;
    void* made = nullptr;
    ASSERT_EQ(OleCreatePictureIndirect(&description, IID_IPictureDisp, TRUE, &made), S_OK);
    const auto object = win32::ComRef<IPictureDisp>::adopting(static_cast<IPictureDisp*>(made));
    const PictureRef picture = win32::pictureFrom(object.get());
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->bitmap(), Bitmap());
    EXPECT_EQ(picture->Width(), 0);
    EXPECT_EQ(win32::toIPicture(picture).get(), object.get());
}

TEST_F(OlePictureTest, BytesThatAreNoPictureThrow481) {
    std::vector<Byte> cut = bitmapFile();
    cut.resize(20);
    const std::vector<Byte> words{'n', 'o', ' ', 'p', 'i', 'c', 't', 'u', 'r', 'e'};
    for (const std::vector<Byte>& bytes : {std::vector<Byte>(), words, cut}) {
        try {
            win32::loadOlePicture(bytes);
            ADD_FAILURE() << bytes.size() << " bytes were read";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), ErrorNumber::invalidPicture);
        }
    }
}

TEST_F(OlePictureTest, ManyPicturesLeaveNoDrawingObjectsBehind) {
    const auto use = [] {
        const PictureRef loaded = win32::loadOlePicture(bitmapFile());
        EXPECT_EQ(win32::pictureFrom(win32::toIPicture(loaded).get()), loaded);
        for (const Bitmap& bitmap : {fourColors(), stripes()}) {
            const auto picture = std::make_shared<BitmapPicture>(bitmap);
            EXPECT_TRUE(win32::toIPicture(picture));
        }
    };
    for (int round = 0; round < 5; ++round)
        use();
    const int before = gdiObjectCount();
    for (int round = 0; round < 500; ++round)
        use();
    EXPECT_EQ(gdiObjectCount(), before);
}

} // namespace
} // namespace lumtex::testing
