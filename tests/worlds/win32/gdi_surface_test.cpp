#include "gdi_handles.h"
#include "values/runtime_error.h"
#include "worlds/win32/gdi_surface.h"

#include <limits>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

constexpr OLE_COLOR red = 0x0000FFU;

TEST(GdiSurface, StartsWhiteAndWithoutDrawing) {
    const win32::GdiSurface surface(3, 2, 96, 96);
    EXPECT_EQ(surface.image(), Bitmap(3, 2, 0xFFFFFFFFU));
    EXPECT_EQ(surface.BackColor(), white);
    EXPECT_EQ(surface.ForeColor(), black);
}

TEST(GdiSurface, AssigningBackColorErasesAllThatWasDrawn) {
    win32::GdiSurface surface(3, 2, 96, 96);
    surface.fillBox(0, 0, 1, 1, red);
    surface.letBackColor(0x00FF00U);
    EXPECT_EQ(surface.image(), Bitmap(3, 2, 0xFF00FF00U));
}

TEST(GdiSurface, ASystemColorIsTheUsers) {
    win32::GdiSurface surface(1, 1, 96, 96);
    for (const int index : {COLOR_BTNFACE, COLOR_GRAYTEXT, COLOR_HIGHLIGHT, COLOR_WINDOW}) {
        surface.letBackColor(systemColorBit | static_cast<OLE_COLOR>(index));
        const COLORREF color = GetSysColor(index);
        const std::uint32_t expected = 0xFF000000U | (std::uint32_t{GetRValue(color)} << 16U) |
                                       (std::uint32_t{GetGValue(color)} << 8U) | GetBValue(color);
        EXPECT_EQ(surface.image().at(0, 0), expected) << index;
    }
}

TEST(GdiSurface, ResizingKeepsWhatStillFitsAndShowsBackColorBeyond) {
    win32::GdiSurface surface(4, 4, 96, 96);
    surface.letBackColor(0xFF0000U);
    surface.fillBox(0, 0, 3, 3, red);
    surface.resize(2, 6);
    const Bitmap shown = surface.image();
    ASSERT_EQ(shown.width, 2);
    ASSERT_EQ(shown.height, 6);
    EXPECT_EQ(shown.at(1, 3), 0xFFFF0000U);
    EXPECT_EQ(shown.at(1, 4), 0xFF0000FFU);
    surface.resize(4, 4);
    EXPECT_EQ(surface.image().at(3, 0), 0xFF0000FFU);
}

TEST(GdiSurface, ResizingKeepsTheFontAndTheColors) {
    win32::GdiSurface surface(40, 40, 96, 96);
    surface.setFont({.Name = u"Courier New", .Size = 20});
    const Single height = surface.textHeight(u"A");
    surface.letForeColor(red);
    surface.resize(50, 50);
    EXPECT_EQ(surface.textHeight(u"A"), height);
    EXPECT_EQ(surface.ForeColor(), red);
}

TEST(GdiSurface, ASurfaceWithoutExtentTakesEveryOperation) {
    win32::GdiSurface surface(0, -5, 96, 96);
    const BitmapPicture picture(Bitmap(2, 2, 0xFF112233U));
    const Point triangle[] = {{0, 0}, {5, 0}, {0, 5}};
    Rect rect{0, 0, 10, 10};
    surface.letBackColor(red);
    surface.line(0, 0, 5, 5, black);
    surface.box(0, 0, 5, 5, black);
    surface.polygon(triangle, black);
    surface.paintPicture(picture, 0, 0);
    surface.drawText(u"text", rect, TextFormat::left);
    surface.print(0, 0, u"text");
    surface.Cls();
    EXPECT_EQ(surface.scaleWidth(), 0);
    EXPECT_EQ(surface.scaleHeight(), 0);
    EXPECT_EQ(surface.image(), Bitmap(0, 0));
}

TEST(GdiSurface, ASizeBeyondAllMemoryIsRefusedAndTheSurfaceStaysAsItWas) {
    win32::GdiSurface surface(2, 2, 96, 96);
    surface.letBackColor(red);
    try {
        surface.resize(1'000'000, 1'000'000);
        ADD_FAILURE() << "was not refused";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), ErrorNumber::outOfMemory);
    }
    EXPECT_EQ(surface.image(), Bitmap(2, 2, 0xFFFF0000U));
}

TEST(GdiSurface, CoordinatesThatDoNotFitThrow) {
    win32::GdiSurface surface(2, 2, 96, 96);
    const Single infinite = std::numeric_limits<Single>::infinity();
    const Single notANumber = std::numeric_limits<Single>::quiet_NaN();
    for (const Single bad : {infinite, -infinite, notANumber, 3e9F}) {
        EXPECT_THROW(surface.line(bad, 0, 0, 0, red), RuntimeError);
        EXPECT_THROW(surface.box(0, bad, 0, 0, red), RuntimeError);
        EXPECT_THROW(surface.fillBox(0, 0, bad, 0, red), RuntimeError);
        EXPECT_THROW(surface.pset(0, bad, red), RuntimeError);
    }
}

TEST(GdiSurface, LengthsAreConvertedByThePixelsOfTheDevice) {
    const win32::GdiSurface usual(1, 1, 96, 96);
    const win32::GdiSurface fine(1, 1, 144, 192);
    EXPECT_EQ(scaleX(usual, 1440, Unit::twips, Unit::pixels), 96);
    EXPECT_EQ(scaleX(fine, 1440, Unit::twips, Unit::pixels), 144);
    EXPECT_EQ(scaleY(fine, 1440, Unit::twips, Unit::pixels), 192);
}

TEST(GdiSurface, TextGrowsWithThePixelsOfTheDevice) {
    win32::GdiSurface usual(1, 1, 96, 96);
    win32::GdiSurface fine(1, 1, 192, 192);
    EXPECT_NEAR(fine.textHeight(u"A"), 2 * usual.textHeight(u"A"), 3);
}

TEST(GdiSurface, TheScreensPixelsCountWhereNothingElseIsAskedFor) {
    const HDC screen = GetDC(nullptr);
    const int expected = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    EXPECT_EQ(win32::makeGdiSurface(1, 1)->pixelsPerInchX(), expected);
}

TEST(GdiSurface, PresentingCopiesEveryPixel) {
    win32::GdiSurface surface(3, 3, 96, 96);
    surface.letBackColor(0x332211U);
    surface.pset(2, 1, red);
    win32::GdiSurface target(4, 4, 96, 96);
    surface.present(target.memoryDc());
    const Bitmap shown = target.image();
    EXPECT_EQ(shown.at(0, 0), 0xFF112233U);
    EXPECT_EQ(shown.at(2, 1), 0xFFFF0000U);
    EXPECT_EQ(shown.at(3, 3), 0xFFFFFFFFU);
}

TEST(GdiSurface, ManySurfacesLeaveNoDrawingObjectsBehind) {
    const auto use = [](int round) {
        win32::GdiSurface surface(20, 20, 96, 96);
        surface.setFont({.Name = u"Courier New", .Size = static_cast<Single>(8 + round % 5)});
        surface.print(0, 0, u"text");
        surface.paintPicture(BitmapPicture(Bitmap(3, 3, 0x80008000U)), 1, 1);
        surface.resize(30, 10);
        surface.print(0, 0, u"text");
        const Point triangle[] = {{0, 0}, {5, 0}, {0, 5}};
        surface.polygon(triangle, black);
    };
    for (int round = 0; round < 5; ++round)
        use(round);
    const int before = gdiObjectCount();
    ASSERT_GT(before, 0);
    for (int round = 0; round < 2000; ++round)
        use(round);
    EXPECT_EQ(gdiObjectCount(), before);
}

TEST(GdiSurface, FontsThatAreNoLongerUsedAreLetGo) {
    win32::GdiSurface surface(20, 20, 96, 96);
    const auto useSizes = [&](int first, int count) {
        for (int size = first; size < first + count; ++size) {
            surface.setFont({.Name = u"Courier New", .Size = static_cast<Single>(size)});
            surface.print(0, 0, u"x");
        }
    };
    useSizes(10, 200);
    const int before = gdiObjectCount();
    useSizes(300, 400);
    EXPECT_LT(gdiObjectCount(), before + 70);
}

} // namespace
} // namespace lumtex::testing
