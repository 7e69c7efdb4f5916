#include "error_number.h"
#include "surface_fixture.h"

namespace lumtex::testing {
namespace {

class Box : public SurfaceTest {};
class FillBox : public SurfaceTest {};
class PSet : public SurfaceTest {};

TEST_F(Box, IsAnOutlineWithBothCorners) {
    surface.box(2, 1, 6, 4, black);
    EXPECT_EQ(shown(),
              "............\n"
              "..#####.....\n"
              "..#...#.....\n"
              "..#...#.....\n"
              "..#####.....\n"
              "............\n");
}

TEST_F(Box, TakesItsCornersInAnyOrder) {
    surface.box(6, 4, 2, 1, black);
    surface.box(8, 4, 11, 1, red);
    EXPECT_EQ(shown(),
              "............\n"
              "..#####.rrrr\n"
              "..#...#.r..r\n"
              "..#...#.r..r\n"
              "..#####.rrrr\n"
              "............\n");
}

TEST_F(Box, OfOnePointSetsThatPixel) {
    surface.box(3, 2, 3, 2, black);
    EXPECT_EQ(inkOf(surface.image()), (Rect{3, 2, 4, 3}));
}

TEST_F(Box, TwoRowsHighIsABar) {
    surface.box(0, 2, 12, 3, black);
    EXPECT_EQ(shown({0, 1, 12, 5}), "............\n############\n############\n............\n");
}

TEST_F(Box, IsClippedAtAllEdges) {
    surface.box(-2, -2, 4, 3, black);
    surface.box(8, 2, farOut, farOut, red);
    surface.box(-farOut, -farOut, farOut, farOut, green);
    EXPECT_EQ(shown(),
              "....#.......\n"
              "....#.......\n"
              "....#...rrrr\n"
              "#####...r...\n"
              "........r...\n"
              "........r...\n");
}

TEST_F(Box, RoundsHalvesToEven) {
    surface.box(0.5F, 0.5F, 2.5F, 3.5F, black);
    EXPECT_EQ(inkOf(surface.image()), (Rect{0, 0, 3, 5}));
}

TEST_F(Box, CoordinateThatFitsNo32BitsIsAnOverflow) {
    for (const Single bad : {infinite, notANumber, tooLarge}) {
        EXPECT_EQ(errorNumberOf([&] { surface.box(bad, 0, 1, 1, black); }), ErrorNumber::overflow);
        EXPECT_EQ(errorNumberOf([&] { surface.box(0, 0, 1, bad, black); }), ErrorNumber::overflow);
    }
    EXPECT_EQ(inkOf(surface.image()), Rect{});
}

TEST_F(FillBox, IncludesBothCorners) {
    surface.fillBox(2, 1, 5, 3, black);
    EXPECT_EQ(shown(),
              "............\n"
              "..####......\n"
              "..####......\n"
              "..####......\n"
              "............\n"
              "............\n");
}

TEST_F(FillBox, TakesItsCornersInAnyOrder) {
    const Rect expected{2, 1, 6, 4};
    surface.fillBox(5, 3, 2, 1, black);
    EXPECT_EQ(inkOf(surface.image()), expected);
    surface.Cls();
    surface.fillBox(2, 3, 5, 1, black);
    EXPECT_EQ(inkOf(surface.image()), expected);
    surface.Cls();
    surface.fillBox(5, 1, 2, 3, black);
    EXPECT_EQ(inkOf(surface.image()), expected);
}

TEST_F(FillBox, OfOnePointSetsThatPixel) {
    surface.fillBox(11, 5, 11, 5, black);
    EXPECT_EQ(inkOf(surface.image()), (Rect{11, 5, 12, 6}));
}

TEST_F(FillBox, IsClippedAtAllEdges) {
    surface.fillBox(-farOut, -farOut, 1, 1, black);
    surface.fillBox(10, 4, farOut, farOut, red);
    surface.fillBox(-9, 0, -1, 5, green);
    surface.fillBox(12, 0, 2147483520.0F, 5, green);
    surface.fillBox(0, 6, 11, 2147483520.0F, green);
    EXPECT_EQ(shown(),
              "##..........\n"
              "##..........\n"
              "............\n"
              "............\n"
              "..........rr\n"
              "..........rr\n");
}

TEST_F(FillBox, RoundsHalvesToEven) {
    surface.fillBox(1.5F, 0.5F, 4.5F, 2.5F, black);
    EXPECT_EQ(inkOf(surface.image()), (Rect{2, 0, 5, 3}));
}

TEST_F(FillBox, CoordinateThatFitsNo32BitsIsAnOverflow) {
    for (const Single bad : {infinite, -infinite, notANumber, tooLarge})
        EXPECT_EQ(errorNumberOf([&] { surface.fillBox(0, bad, 1, 1, black); }), ErrorNumber::overflow);
    EXPECT_EQ(inkOf(surface.image()), Rect{});
}

TEST_F(PSet, SetsOnePixel) {
    surface.pset(4, 2, black);
    EXPECT_EQ(inkOf(surface.image()), (Rect{4, 2, 5, 3}));
}

TEST_F(PSet, OutsideTheSurfaceSetsNone) {
    for (const Single far : {-1.0F, 12.0F, farOut, -farOut}) {
        surface.pset(far, 2, black);
        surface.pset(2, far, black);
    }
    EXPECT_EQ(inkOf(surface.image()), Rect{});
}

TEST_F(PSet, RoundsHalvesToEven) {
    surface.pset(2.5F, 1.5F, black);
    EXPECT_EQ(inkOf(surface.image()), (Rect{2, 2, 3, 3}));
}

TEST_F(PSet, CoordinateThatFitsNo32BitsIsAnOverflow) {
    EXPECT_EQ(errorNumberOf([&] { surface.pset(notANumber, 0, black); }), ErrorNumber::overflow);
    EXPECT_EQ(errorNumberOf([&] { surface.pset(0, tooLarge, black); }), ErrorNumber::overflow);
}

} // namespace
} // namespace lumtex::testing
