#include "error_number.h"
#include "surface_fixture.h"

namespace lumtex::testing {
namespace {

class Line : public SurfaceTest {
  protected:
    void draw(Single x1, Single y1, Single x2, Single y2) { surface.line(x1, y1, x2, y2, black); }
};

struct Direction {
    const char* name;
    Single dx;
    Single dy;
    const char* shown;
};

class LineDirection : public ::testing::TestWithParam<Direction> {};

constexpr Direction directions[] = {
    {"Right", 2, 0, ".....\n.....\n..##.\n.....\n.....\n"},
    {"RightDown", 2, 2, ".....\n.....\n..#..\n...#.\n.....\n"},
    {"Down", 0, 2, ".....\n.....\n..#..\n..#..\n.....\n"},
    {"LeftDown", -2, 2, ".....\n.....\n..#..\n.#...\n.....\n"},
    {"Left", -2, 0, ".....\n.....\n.##..\n.....\n.....\n"},
    {"LeftUp", -2, -2, ".....\n.#...\n..#..\n.....\n.....\n"},
    {"Up", 0, -2, ".....\n..#..\n..#..\n.....\n.....\n"},
    {"RightUp", 2, -2, ".....\n...#.\n..#..\n.....\n.....\n"},
};

TEST_P(LineDirection, LeavesOutItsLastPixel) {
    raster::RasterSurface surface(5, 5, testFonts());
    surface.line(2, 2, 2 + GetParam().dx, 2 + GetParam().dy, black);
    EXPECT_EQ(drawing(surface.image()), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(All, LineDirection, ::testing::ValuesIn(directions), [](const auto& direction) {
    return std::string(direction.param.name);
});

TEST_F(Line, OfNoLengthSetsNoPixel) {
    draw(3, 3, 3, 3);
    EXPECT_EQ(inkOf(surface.image()), Rect{});
}

TEST_F(Line, TakesTheNearestPixelOfEachColumn) {
    draw(0, 0, 11, 4);
    EXPECT_EQ(shown(),
              "##..........\n"
              "..###.......\n"
              ".....##.....\n"
              ".......###..\n"
              "..........#.\n"
              "............\n");
}

TEST_F(Line, TakesTheNearestPixelOfEachRowWhenSteep) {
    draw(0, 0, 2, 6);
    EXPECT_EQ(shown({0, 0, 3, 6}), "#..\n#..\n.#.\n.#.\n.#.\n..#\n");
}

TEST_F(Line, HalfwayBetweenTwoRowsTakesTheUpperOneInBothDirections) {
    draw(0, 1, 4, 3);
    draw(10, 3, 6, 1);
    EXPECT_EQ(shown(),
              "............\n"
              "##.....#....\n"
              "..##....##..\n"
              "..........#.\n"
              "............\n"
              "............\n");
}

TEST_F(Line, HalfwayBetweenTwoColumnsTakesTheLeftOneInBothDirections) {
    draw(1, 0, 3, 4);
    draw(8, 4, 6, 0);
    EXPECT_EQ(shown(),
              ".#..........\n"
              ".#....#.....\n"
              "..#....#....\n"
              "..#....#....\n"
              "........#...\n"
              "............\n");
}

TEST_F(Line, IsClippedAtAllEdges) {
    draw(-5, 2, 40, 2);
    draw(4, -9, 4, 40);
    draw(-3, -1, 9, -1);
    draw(0, 6, 12, 6);
    draw(12, 0, 12, 6);
    EXPECT_EQ(shown(),
              "....#.......\n"
              "....#.......\n"
              "############\n"
              "....#.......\n"
              "....#.......\n"
              "....#.......\n");
}

TEST_F(Line, OfHugeExtentPassesThroughTheSamePixelsAsAShortOne) {
    draw(-farOut, -farOut, farOut, farOut);
    constexpr Single far = 8388608; // farther out a Single skips whole numbers
    draw(11 + far, -far, 11 - far, far);
    EXPECT_EQ(shown(),
              "#..........#\n"
              ".#........#.\n"
              "..#......#..\n"
              "...#....#...\n"
              "....#..#....\n"
              ".....##.....\n");
}

TEST_F(Line, FarOutsideDrawsNothing) {
    draw(farOut, farOut, farOut + 1024, farOut + 512);
    draw(-farOut, 3, -farOut + 4096, 3);
    draw(2147483520.0F, -2147483520.0F, 2147483520.0F, 2147483520.0F);
    EXPECT_EQ(inkOf(surface.image()), Rect{});
}

TEST_F(Line, RoundsHalvesToEven) {
    draw(0.5F, 0.5F, 2.5F, 0.5F);
    draw(1.5F, 2.5F, 3.5F, 2.5F);
    EXPECT_EQ(shown({0, 0, 6, 4}), "##....\n......\n..##..\n......\n");
}

TEST_F(Line, CoordinateThatFitsNo32BitsIsAnOverflow) {
    for (const Single bad : {infinite, -infinite, notANumber, tooLarge, -3e9F}) {
        EXPECT_EQ(errorNumberOf([&] { draw(bad, 0, 1, 1); }), ErrorNumber::overflow);
        EXPECT_EQ(errorNumberOf([&] { draw(0, bad, 1, 1); }), ErrorNumber::overflow);
        EXPECT_EQ(errorNumberOf([&] { draw(0, 0, bad, 1); }), ErrorNumber::overflow);
        EXPECT_EQ(errorNumberOf([&] { draw(0, 0, 1, bad); }), ErrorNumber::overflow);
    }
    EXPECT_EQ(inkOf(surface.image()), Rect{});
}

TEST_F(Line, ColourMayNameASystemColour) {
    surface.line(0, 0, 1, 0, buttonFace);
    EXPECT_EQ(surface.pixels()[0], 0xFFECE9D8U);
}

} // namespace
} // namespace lumtex::testing
