/// Glyphs that are pictures in colours of their own: people, things, flags.
#include "folders.h"
#include "pixels.h"
#include "raster/raster_surface.h"
#include "test_fonts.h"
#include "values/color.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

constexpr StringView tree = u"\U0001F332";
constexpr StringView smile = u"\U0001F600"; // which the main face has as an outline
constexpr StringView family = u"\U0001F468\u200D\U0001F469\u200D\U0001F467";
constexpr StringView man = u"\U0001F468";
constexpr StringView flag = u"\U0001F1F3\U0001F1F4"; // of Norway

std::shared_ptr<raster::FontLibrary> coloredFonts() {
    static const auto fonts = raster::FontLibrary::fromConfiguration(testFolder() + "/fonts/coloured.conf");
    return fonts;
}

class ColouredGlyphs : public ::testing::Test {
  protected:
    ColouredGlyphs() { letSize(12); }

    /// Points.
    void letSize(Single size) { surface.setFont({.Name = u"Verdana", .Size = size}); }
    Long widthOf(StringView text) { return static_cast<Long>(surface.textWidth(text)); }
    Bitmap drawn(StringView text, Rect room) {
        surface.Cls();
        surface.drawText(text, room, TextFormat::singleLine);
        return surface.image();
    }
    Bitmap drawn(StringView text) { return drawn(text, {10, 5, 290, 60}); }
    /// Pixels that are no mixture of the white ground and the black of the text.
    static int coloredIn(const Bitmap& picture) {
        return static_cast<int>(std::ranges::count_if(picture.pixels, [](std::uint32_t pixel) {
            const auto channel = [&](unsigned index) {
                return static_cast<int>(straightChannel(pixel, index));
            };
            return std::abs(channel(0) - channel(1)) > 40 || std::abs(channel(1) - channel(2)) > 40;
        }));
    }

    raster::RasterSurface surface{300, 60, coloredFonts()};
};

TEST_F(ColouredGlyphs, HaveTheirOwnColours) {
    EXPECT_GT(coloredIn(drawn(tree)), 50);
    EXPECT_EQ(coloredIn(drawn(u"tree")), 0);
}

TEST_F(ColouredGlyphs, ComeBeforeOutlinesOfTheMainFace) {
    EXPECT_GT(coloredIn(drawn(smile)), 50);
}

TEST_F(ColouredGlyphs, AreOutlinesWhereNoFaceHasColours) {
    raster::RasterSurface plain(300, 60, testFonts());
    plain.setFont({.Name = u"Verdana", .Size = 12});
    Rect room{10, 5, 290, 60};
    plain.drawText(smile, room, TextFormat::singleLine);
    EXPECT_EQ(coloredIn(plain.image()), 0);
}

TEST_F(ColouredGlyphs, GrowWithTheFont) {
    Long last = 0;
    for (const Single size : {6.F, 8.F, 12.F, 24.F, 40.F}) {
        letSize(size);
        const Long width = widthOf(tree);
        EXPECT_GT(width, last);
        // A square, a little larger than the letters.
        EXPECT_NEAR(static_cast<double>(width), size * 96 / 72 * 1.25, 2) << size;
        EXPECT_GT(coloredIn(drawn(tree)), width * width / 5) << size;
        last = width;
    }
}

TEST_F(ColouredGlyphs, StandOneBehindAnother) {
    EXPECT_EQ(widthOf(u"\U0001F332\U0001F332"), 2 * widthOf(tree));
    const int one = coloredIn(drawn(tree));
    EXPECT_EQ(coloredIn(drawn(u"\U0001F332\U0001F332")), 2 * one);
}

TEST_F(ColouredGlyphs, AreOneWhereJoinersJoinThem) {
    EXPECT_EQ(widthOf(family), widthOf(man));
    EXPECT_EQ(widthOf(flag), widthOf(man));
}

TEST_F(ColouredGlyphs, AreCutWhereTheirRoomEnds) {
    const Rect room{10, 5, 10 + widthOf(tree) / 2, 60};
    const Bitmap cut = drawn(tree, room);
    const Bitmap whole = drawn(tree);
    for (Long y = 0; y < cut.height; ++y)
        for (Long x = 0; x < cut.width; ++x)
            EXPECT_EQ(cut.at(x, y), x < room.Right ? whole.at(x, y) : whole.at(0, 0)) << x << ", " << y;
}

TEST_F(ColouredGlyphs, StayInTheLine) {
    letSize(10);
    Rect room{0, 0, 300, 60};
    const Long lineHeight = surface.drawText(u"Ag", room, TextFormat::singleLine | TextFormat::calcRect);
    const Bitmap picture = drawn(tree, {0, 10, 300, 60});
    for (Long y = 0; y < picture.height; ++y) {
        if (y >= 8 && y < 12 + lineHeight)
            continue;
        for (Long x = 0; x < picture.width; ++x)
            EXPECT_EQ(picture.at(x, y), picture.at(299, 59)) << x << ", " << y;
    }
}

} // namespace
} // namespace lumtex::testing
