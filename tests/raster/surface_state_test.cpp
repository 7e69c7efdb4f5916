#include "surface_fixture.h"
#include "values/runtime_error.h"

namespace lumtex::testing {
namespace {

class Clearing : public SurfaceTest {};
class Resize : public SurfaceTest {};
class SurfaceState : public SurfaceTest {};

TEST_F(Clearing, ClsClearsToBackColor) {
    surface.letBackColor(yellow);
    surface.fillBox(0, 0, 3, 3, black);
    surface.Cls();
    EXPECT_EQ(shown({0, 0, 4, 2}), "yyyy\nyyyy\n");
}

TEST_F(Clearing, AssigningBackColorFillsTheWholeSurface) {
    surface.fillBox(0, 0, 11, 5, black);
    surface.letBackColor(blue);
    EXPECT_EQ(surface.BackColor(), blue);
    EXPECT_EQ(shown(),
              "bbbbbbbbbbbb\nbbbbbbbbbbbb\nbbbbbbbbbbbb\nbbbbbbbbbbbb\nbbbbbbbbbbbb\nbbbbbbbbbbbb\n");
}

TEST_F(Clearing, AssigningTheSameBackColorErasesAsWell) {
    surface.fillBox(0, 0, 11, 5, black);
    surface.letBackColor(surface.BackColor());
    EXPECT_EQ(inkOf(surface.image()), Rect{});
}

TEST_F(Clearing, BackColorMayBeASystemColour) {
    surface.letBackColor(buttonFace);
    EXPECT_EQ(surface.BackColor(), buttonFace);
    EXPECT_EQ(surface.pixels()[0], 0xFFECE9D8U);
}

TEST_F(Clearing, HoldsUnderEveryOperationThatFollows) {
    const auto ground = [&] { return surface.image().at(11, 5); };
    const BitmapPicture picture(Bitmap(2, 2, 0xFF000000U));
    const std::array<Byte, 4> dib{0, 0, 0, 0};
    Rect rect{0, 0, 5, 5};
    const std::function<void()> operations[] = {
        [&] { surface.line(0, 0, 2, 0, black); },
        [&] { surface.box(0, 0, 2, 2, black); },
        [&] { surface.fillBox(0, 0, 2, 2, black); },
        [&] { surface.pset(0, 0, black); },
        [&] {
            surface.polygon(std::array<Point, 2>{{{0, 0}, {3, 0}}}, black);
        },
        [&] { surface.paintPicture(picture, 0, 0); },
        [&] { surface.paintPicture(picture, 0, 0, 3, 3); },
        [&] {
            surface.paintPicture(picture, {0, 0, 1, 1}, {0, 0, 1, 1});
        },
        [&] {
            surface.stretchDIBits(0, 0, 2, 2, {1, 1, dib});
        },
        [&] { surface.print(0, 0, u"I"); },
        [&] { surface.drawText(u"I", rect, TextFormat::left); },
    };
    for (const auto& operation : operations) {
        surface.letBackColor(red);
        surface.letBackColor(blue);
        operation();
        EXPECT_EQ(ground(), 0xFF0000FFU);
        EXPECT_NE(inkOf(surface.image(), 0x0000FF), Rect{});
    }
}

TEST_F(Clearing, ShowsInPixelsAndImageAlike) {
    surface.letBackColor(yellow);
    EXPECT_EQ(surface.image(), Bitmap(12, 6, 0xFFFFFF00U));
    EXPECT_EQ(surface.pixels().size(), 72U);
    EXPECT_EQ(surface.pixels()[71], 0xFFFFFF00U);
}

TEST_F(Resize, KeepsWhatFitsAndShowsBackColorBeside) {
    surface.letBackColor(yellow);
    surface.fillBox(1, 1, 4, 4, black);
    surface.resize(3, 3);
    surface.resize(6, 5);
    EXPECT_EQ(surface.scaleWidth(), 6);
    EXPECT_EQ(surface.scaleHeight(), 5);
    EXPECT_EQ(shown(), "yyyyyy\ny##yyy\ny##yyy\nyyyyyy\nyyyyyy\n");
}

TEST_F(Resize, RightAfterAClearingShowsItsColourEverywhere) {
    surface.letBackColor(yellow);
    surface.resize(4, 2);
    EXPECT_EQ(shown(), "yyyy\nyyyy\n");
}

TEST_F(Resize, ToNothingAndBackIsSafe) {
    surface.fillBox(0, 0, 11, 5, black);
    surface.resize(0, 4);
    EXPECT_EQ(surface.image().pixels.size(), 0U);
    surface.line(0, 0, 3, 3, black);
    surface.letBackColor(red);
    Rect rect{0, 0, 10, 10};
    surface.drawText(u"text", rect, TextFormat::left);
    surface.resize(-4, -4);
    EXPECT_EQ(surface.scaleWidth(), 0);
    EXPECT_EQ(surface.scaleHeight(), 0);
    surface.resize(2, 1);
    EXPECT_EQ(shown(), "rr\n");
}

TEST_F(Resize, LeavesStateAlone) {
    surface.letForeColor(red);
    surface.resize(4, 4);
    EXPECT_EQ(surface.ForeColor(), red);
}

TEST_F(SurfaceState, ANewSurfaceIsWhiteWithBlackInk) {
    EXPECT_EQ(inkOf(surface.image()), Rect{});
    EXPECT_EQ(surface.BackColor(), white);
    EXPECT_EQ(surface.ForeColor(), black);
}

TEST_F(SurfaceState, MeasuresNinetySixPixelsAnInch) {
    EXPECT_EQ(surface.pixelsPerInchX(), 96);
    EXPECT_EQ(surface.pixelsPerInchY(), 96);
    EXPECT_EQ(scaleX(surface, 15, Unit::twips, Unit::pixels), 1);
    EXPECT_EQ(scaleY(surface, 1440, Unit::twips, Unit::pixels), 96);
    EXPECT_EQ(scaleX(surface, 2540, Unit::himetric, Unit::pixels), 96);
    EXPECT_EQ(scaleY(surface, 96, Unit::pixels, Unit::himetric), 2540);
    EXPECT_EQ(scaleX(surface, 7, Unit::pixels, Unit::pixels), 7);
    EXPECT_EQ(scaleX(surface, 10, Unit::twips, Unit::pixels), 10.0F / 15.0F);
}

TEST_F(SurfaceState, ImageIsOpaqueAndDoesNotFollowTheSurface) {
    surface.pset(0, 0, red);
    const Bitmap before = surface.image();
    surface.pset(0, 0, blue);
    EXPECT_EQ(before.at(0, 0), 0xFFFF0000U);
    for (const std::uint32_t pixel : before.pixels)
        EXPECT_EQ(pixel >> 24U, 0xFFU);
}

TEST_F(SurfaceState, APartOfAPictureWhosePlaceDoesNotFitThrows) {
    const BitmapPicture picture(Bitmap(1, 1));
    EXPECT_THROW(surface.paintPicture(picture, {infinite, 0, 1, 1}, {0, 0, 1, 1}), RuntimeError);
    EXPECT_THROW(surface.paintPicture(picture, {0, 0, 1, 1}, {0, 3e9F, 1, 1}), RuntimeError);
}

} // namespace
} // namespace lumtex::testing
