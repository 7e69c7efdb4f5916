/// The surface of Windows and the software surface cover the same pixels.
#include "surface_pair.h"

#include <random>
#include <vector>

namespace lumtex::testing {
namespace {

using SurfaceAgreement = SurfacePair;

constexpr OLE_COLOR red = 0x0000FFU;
constexpr OLE_COLOR green = 0x00FF00U;

/// Whole numbers from a fixed seed.
class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}
    Long from(Long lowest, Long highest) {
        const auto count = static_cast<std::uint32_t>(highest - lowest) + 1;
        return lowest + static_cast<Long>(engine_() % count);
    }
    bool coin() { return from(0, 1) == 1; }

  private:
    std::mt19937 engine_;
};

Bitmap noise(Dice& dice, Long width, Long height, bool opaque) {
    Bitmap bitmap(width, height);
    for (std::uint32_t& pixel : bitmap.pixels) {
        const Long alpha = opaque ? 255 : dice.from(0, 255);
        pixel = static_cast<std::uint32_t>(alpha);
        for (int channel = 0; channel < 3; ++channel)
            pixel = (pixel << 8U) | static_cast<std::uint32_t>(dice.from(0, alpha));
    }
    return bitmap;
}

TEST_F(SurfaceAgreement, ShortLinesInEveryDirection) {
    for (Long dx = -14; dx <= 14; ++dx) {
        for (Long dy = -14; dy <= 14; ++dy) {
            clear();
            both([&](Surface& surface) {
                surface.line(20, 15, static_cast<Single>(20 + dx), static_cast<Single>(15 + dy), red);
            });
            ASSERT_TRUE(agree()) << dx << ", " << dy;
        }
    }
}

TEST_F(SurfaceAgreement, LinesThatComeFromFarAway) {
    Dice dice(1);
    for (int round = 0; round < 3000; ++round) {
        clear();
        const Long reach = round % 2 == 0 ? 100 : 1'000'000;
        Single ends[4];
        for (Single& end : ends)
            end = static_cast<Single>(dice.from(-reach, reach));
        both([&](Surface& surface) { surface.line(ends[0], ends[1], ends[2], ends[3], red); });
        ASSERT_TRUE(agree()) << ends[0] << ", " << ends[1] << " to " << ends[2] << ", " << ends[3];
    }
}

TEST_F(SurfaceAgreement, LevelAndUprightLinesAcrossTheWholeRangeOfNumbers) {
    both([](Surface& surface) {
        surface.line(-2147483648.0F, 3, 2147483520.0F, 3, red);
        surface.line(7, 2147483520.0F, 7, -2147483648.0F, green);
        surface.line(2147483520.0F, 5, 2147483520.0F, -5, red);
    });
    EXPECT_TRUE(agree());
}

TEST_F(SurfaceAgreement, Boxes) {
    Dice dice(2);
    for (int round = 0; round < 1000; ++round) {
        clear();
        const bool isFar = round % 10 == 0;
        Single corners[4];
        for (Single& corner : corners)
            corner = isFar ? static_cast<Single>(dice.from(-2'000'000'000, 2'000'000'000))
                           : static_cast<Single>(dice.from(-200, 500)) / 10;
        both([&](Surface& surface) {
            surface.fillBox(corners[0], corners[1], corners[2], corners[3], green);
            surface.box(corners[2], corners[1], corners[0] + 3, corners[3] + 2, red);
            surface.pset(corners[0], corners[3], black);
        });
        ASSERT_TRUE(agree()) << corners[0] << ", " << corners[1] << ", " << corners[2] << ", " << corners[3];
    }
}

TEST_F(SurfaceAgreement, Polygons) {
    Dice dice(3);
    for (int round = 0; round < 4000; ++round) {
        clear();
        const Long reach = round % 2 == 0 ? 40 : 400;
        std::vector<Point> points(static_cast<std::size_t>(dice.from(1, 7)));
        for (Point& point : points)
            point = {dice.from(20 - reach, 20 + reach), dice.from(15 - reach, 15 + reach)};
        const bool outlined = dice.coin();
        both([&](Surface& surface) {
            surface.letForeColor(outlined ? red : green);
            surface.polygon(points, green);
        });
        ASSERT_TRUE(agree()) << "round " << round;
    }
}

TEST_F(SurfaceAgreement, PolygonsFarOutsideTakeNoTime) {
    const Point points[] = {
        {-2'000'000'000, -2'000'000'000}, {2'000'000'000, -2'000'000'000}, {5, 2'000'000'000}};
    both([&](Surface& surface) {
        surface.letForeColor(red);
        surface.polygon(points, green);
    });
    EXPECT_TRUE(agree());
}

struct Scaling {
    const char* name;
    Long narrowest, widest; ///< of the copy, in percent of the picture
};
constexpr Scaling scalings[] = {{"at its own size", 100, 100}, {"enlarged", 100, 400}, {"shrunken", 5, 100}};

TEST_F(SurfaceAgreement, PicturesOpaqueAndTransparent) {
    Dice dice(4);
    for (const Scaling& scaling : scalings) {
        for (int round = 0; round < 1000; ++round) {
            const BitmapPicture picture(noise(dice, dice.from(1, 12), dice.from(1, 12), round % 2 == 0));
            const auto scaled = [&](Long size) {
                return static_cast<Single>(size * dice.from(scaling.narrowest, scaling.widest) / 100);
            };
            const Single w = scaled(picture.bitmap().width);
            const Single h = scaled(picture.bitmap().height);
            const auto x = static_cast<Single>(dice.from(-8, 42));
            const auto y = static_cast<Single>(dice.from(-8, 32));
            both([&](Surface& surface) { surface.paintPicture(picture, x, y, w, h); });
            ASSERT_TRUE(agree()) << scaling.name << ", round " << round;
        }
    }
}

TEST_F(SurfaceAgreement, PartsOfPictures) {
    Dice dice(5);
    for (int round = 0; round < 1500; ++round) {
        const BitmapPicture picture(noise(dice, dice.from(1, 16), dice.from(1, 6), round % 3 != 0));
        Single places[8];
        for (Single& place : places)
            place = static_cast<Single>(dice.from(-4, 20));
        both([&](Surface& surface) {
            surface.paintPicture(picture,
                                 {places[0], places[1], places[2], places[3]},
                                 {places[4], places[5], places[6], places[7]});
        });
        ASSERT_TRUE(agree()) << "round " << round;
    }
}

TEST_F(SurfaceAgreement, StretchedBitmaps) {
    Dice dice(6);
    for (const Scaling& scaling : scalings) {
        for (int round = 0; round < 1000; ++round) {
            const Long sourceWidth = dice.from(1, 8);
            const Long sourceHeight = dice.from(1, 8);
            std::vector<Byte> bytes(static_cast<std::size_t>((sourceWidth * 3 + 3) / 4 * 4 * sourceHeight));
            for (Byte& byte : bytes)
                byte = static_cast<Byte>(dice.from(0, 255));
            const Long w = sourceWidth * dice.from(scaling.narrowest, scaling.widest) / 100;
            const Long h = sourceHeight * dice.from(scaling.narrowest, scaling.widest) / 100;
            const Long x = dice.from(-8, 42);
            const Long y = dice.from(-8, 32);
            both([&](Surface& surface) {
                surface.stretchDIBits(x, y, w, h, {sourceWidth, sourceHeight, bytes});
            });
            ASSERT_TRUE(agree()) << scaling.name << " " << sourceWidth << " x " << sourceHeight << " to " << w
                                 << " x " << h << " at " << x << ", " << y;
        }
    }
}

TEST_F(SurfaceAgreement, ClearingAndResizing) {
    Dice dice(7);
    for (int round = 0; round < 300; ++round) {
        const auto color = static_cast<OLE_COLOR>(dice.from(0, 0xFFFFFF));
        switch (dice.from(0, 3)) {
        case 0:
            both([&](Surface& surface) { surface.letBackColor(color); });
            break;
        case 1:
            both([](Surface& surface) { surface.Cls(); });
            break;
        case 2: {
            const Long w = dice.from(-2, 60);
            const Long h = dice.from(-2, 40);
            windows.resize(w, h);
            software.resize(w, h);
            break;
        }
        default:
            both([&](Surface& surface) { surface.line(0, 0, 30, static_cast<Single>(round % 29), color); });
        }
        ASSERT_TRUE(agree()) << "round " << round;
    }
}

TEST_F(SurfaceAgreement, LongRowsOfMixedOperations) {
    Dice dice(8);
    const auto place = [&] { return static_cast<Single>(dice.from(-100, 500)) / 8; };
    for (int round = 0; round < 4000; ++round) {
        const Single x1 = place();
        const Single y1 = place();
        const Single x2 = place();
        const Single y2 = place();
        const auto color = static_cast<OLE_COLOR>(dice.from(0, 0xFFFFFF));
        const Long kind = dice.from(0, 6);
        const BitmapPicture picture(noise(dice, 6, 5, dice.coin()));
        const Point points[] = {{static_cast<Long>(x1), static_cast<Long>(y1)},
                                {static_cast<Long>(x2), static_cast<Long>(y2)},
                                {dice.from(-20, 50), dice.from(-20, 50)}};
        both([&](Surface& surface) {
            switch (kind) {
            case 0:
                return surface.line(x1, y1, x2, y2, color);
            case 1:
                return surface.box(x1, y1, x2, y2, color);
            case 2:
                return surface.fillBox(x1, y1, x2, y2, color);
            case 3:
                return surface.pset(x1, y1, color);
            case 4:
                return surface.paintPicture(picture, x1, y1, x2, y2);
            case 5:
                return surface.polygon(points, color);
            default:
                return surface.letForeColor(color);
            }
        });
        if (round % 50 == 0) {
            ASSERT_TRUE(agree()) << "round " << round;
        }
    }
    EXPECT_TRUE(agree());
}

TEST_F(SurfaceAgreement, SystemColorsWithoutANumberAreBlack) {
    both([](Surface& surface) {
        surface.fillBox(0, 0, 5, 5, 0x8000FFFFU);
        surface.fillBox(10, 0, 15, 5, 0x800000FFU);
    });
    EXPECT_TRUE(agree());
    EXPECT_EQ(windows.image().at(0, 0), 0xFF000000U);
}

} // namespace
} // namespace lumtex::testing
