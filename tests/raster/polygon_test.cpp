#include "surface_fixture.h"

#include <array>
#include <vector>

namespace lumtex::testing {
namespace {

constexpr Long largest = std::numeric_limits<Long>::max();
constexpr Long smallest = std::numeric_limits<Long>::min();

class Polygon : public SurfaceTest {
  protected:
    void solid(std::span<const Point> points, OLE_COLOR fill, OLE_COLOR outline) {
        surface.letForeColor(outline);
        surface.polygon(points, fill);
    }
};

TEST_F(Polygon, TriangleThatPointsDownIsWholeAndSymmetric) {
    solid(std::array<Point, 3>{{{1, 1}, {9, 1}, {5, 5}}}, black, black);
    EXPECT_EQ(shown(),
              "............\n"
              ".#########..\n"
              "..#######...\n"
              "...#####....\n"
              "....###.....\n"
              ".....#......\n");
}

TEST_F(Polygon, TriangleThatPointsUpIsOnePixelTallerAndSymmetric) {
    solid(std::array<Point, 3>{{{1, 5}, {9, 5}, {5, 0}}}, black, black);
    EXPECT_EQ(shown(),
              ".....#......\n"
              "....###.....\n"
              "...#####....\n"
              "...#####....\n"
              "..#######...\n"
              ".#########..\n");
}

TEST_F(Polygon, FillLeavesOutRightAndLowerEdgesWhichTheOutlineCovers) {
    const std::array<Point, 4> square{{{2, 1}, {6, 1}, {6, 4}, {2, 4}}};
    solid(square, green, red);
    EXPECT_EQ(shown({1, 0, 8, 6}),
              ".......\n"
              ".rrrrr.\n"
              ".rgggr.\n"
              ".rgggr.\n"
              ".rrrrr.\n"
              ".......\n");
}

TEST_F(Polygon, WindsAlternately) {
    // One square in another, walked in the same direction and joined by a line that is walked twice.
    const std::array<Point, 10> frame{{{0, 0},
                                       {8, 0},
                                       {8, 5},
                                       {0, 5},
                                       {0, 0}, //
                                       {2, 2},
                                       {6, 2},
                                       {6, 4},
                                       {2, 4},
                                       {2, 2}}};
    solid(frame, green, red);
    EXPECT_EQ(shown({3, 2, 6, 4}), "rrr\n...\n");
    EXPECT_EQ(shown({7, 1, 8, 5}), "g\ng\ng\ng\n");
}

TEST_F(Polygon, OfFewOrEqualPointsIsSafe) {
    surface.polygon({}, black);
    surface.polygon(std::array<Point, 1>{{{3, 3}}}, black);
    surface.polygon(std::array<Point, 3>{{{3, 3}, {3, 3}, {3, 3}}}, black);
    EXPECT_EQ(inkOf(surface.image()), Rect{});
}

TEST_F(Polygon, OfTwoPointsIsALineThereAndBack) {
    surface.polygon(std::array<Point, 2>{{{2, 2}, {5, 2}}}, green);
    EXPECT_EQ(inkOf(surface.image()), (Rect{2, 2, 6, 3}));
}

TEST_F(Polygon, ManyPointsFillLikeFew) {
    // A square whose upper edge names each of its pixels four times.
    std::vector<Point> points;
    for (Long x = 2; x <= 8; ++x)
        points.insert(points.end(), 4, {x, 1});
    points.insert(points.end(), {{8, 4}, {2, 4}});
    solid(points, green, red);
    EXPECT_EQ(shown({2, 1, 9, 5}), "rrrrrrr\nrgggggr\nrgggggr\nrrrrrrr\n");
}

TEST_F(Polygon, IsClippedAtAllEdges) {
    solid(std::array<Point, 4>{{{-5, -5}, {6, -5}, {6, 20}, {-5, 20}}}, green, red);
    EXPECT_EQ(shown({0, 0, 8, 2}), "ggggggr.\nggggggr.\n");
}

TEST_F(Polygon, FromEndToEndOf32BitsIsExact) {
    solid(
        std::array<Point, 4>{
            {{smallest, smallest}, {largest, smallest}, {largest, largest}, {smallest, largest}}},
        green,
        red);
    EXPECT_EQ(shown({0, 0, 12, 1}), "gggggggggggg\n");
    surface.Cls();
    // The slanting side runs through (0, 0) with a slope of one.
    solid(std::array<Point, 3>{{{-largest, -largest}, {largest, largest}, {-largest, largest}}}, green, red);
    EXPECT_EQ(shown({0, 0, 6, 3}), "r.....\ngr....\nggr...\n");
}

} // namespace
} // namespace lumtex::testing
