/// Text takes the same room on the surface of Windows as on the software surface, and stands in the same
/// lines.
#include "surface_pair.h"

namespace lumtex::testing {
namespace {

struct Sample {
    const char* name;
    const char16_t* text;
};
constexpr Sample samples[] = {
    {"a word", u"Hello"},
    {"too long", u"A longer text that does not fit"},
    {"two lines", u"two\nlines"},
    {"a break at the end", u"two\r\nlines with more of it\r\n"},
    {"a lone carriage return", u"x\ry\n\nz"},
    {"prefix characters", u"a&b && c"},
    {"a prefix character at the end", u"Save &as&"},
    {"nothing", u""},
    {"a blank at the end", u"trail  "},
};
constexpr Long widths[] = {3, 10, 35, 36, 80, 81, 200};
constexpr Long heights[] = {5, 24, 25, 26};

struct Format {
    const char* name;
    TextFormat bits;
};
constexpr Format formats[] = {
    {"left", TextFormat::left},
    {"centre", TextFormat::center},
    {"right", TextFormat::right},
    {"single line, left", TextFormat::left | TextFormat::singleLine | TextFormat::wordEllipsis},
    {"single line, centre", TextFormat::center | TextFormat::singleLine | TextFormat::wordEllipsis},
    {"single line, right", TextFormat::right | TextFormat::singleLine | TextFormat::wordEllipsis},
    {"centred upright",
     TextFormat::left | TextFormat::singleLine | TextFormat::wordEllipsis | TextFormat::vCenter},
    {"centred both ways", TextFormat::center | TextFormat::singleLine | TextFormat::vCenter},
    {"lines with dots", TextFormat::left | TextFormat::wordEllipsis},
    {"lines with dots, right", TextFormat::right | TextFormat::wordEllipsis},
};

/// The breaks of a text in a single line are drawn by some fonts of Windows.
bool hasBreaks(StringView text) {
    return text.find_first_of(u"\r\n") != StringView::npos;
}

class SurfaceText : public ::testing::Test {
  protected:
    SurfaceText() {
        for (Surface* surface : {static_cast<Surface*>(&windows), static_cast<Surface*>(&software)})
            surface->setFont({.Name = u"Courier New", .Size = 9});
    }

    win32::GdiSurface windows{220, 60, 96, 96};
    raster::RasterSurface software{220, 60, raster::FontLibrary::ofSystem()};
};

TEST_F(SurfaceText, ExtentsAreEqual) {
    for (const Sample& sample : samples) {
        // Its carriage return alone has a width that depends on the font.
        if (sample.text == StringView(u"x\ry\n\nz"))
            continue;
        EXPECT_EQ(windows.textWidth(sample.text), software.textWidth(sample.text)) << sample.name;
        EXPECT_EQ(windows.textHeight(sample.text), software.textHeight(sample.text)) << sample.name;
    }
}

TEST_F(SurfaceText, FormattedTextReturnsTheSameHeightAndRectangle) {
    for (const Sample& sample : samples) {
        for (const Format& format : formats) {
            if (has(format.bits, TextFormat::singleLine) && hasBreaks(sample.text))
                continue;
            for (const Long width : widths) {
                for (const Long height : heights) {
                    for (const bool calculate : {false, true}) {
                        // Where the extent would stand does not matter to it.
                        if (calculate && has(format.bits, TextFormat::vCenter))
                            continue;
                        SCOPED_TRACE(::testing::Message() << sample.name << ", " << format.name << ", "
                                                          << width << " x " << height << ", " << calculate);
                        Rect onWindows{2, 3, 2 + width, 3 + height};
                        Rect inSoftware = onWindows;
                        const TextFormat bits =
                            format.bits | (calculate ? TextFormat::calcRect : TextFormat::left);
                        const Long heightOnWindows = windows.drawText(sample.text, onWindows, bits);
                        const Long heightInSoftware = software.drawText(sample.text, inSoftware, bits);
                        // Painting lines, the system stops counting where the rectangle ends.
                        if (calculate || has(format.bits, TextFormat::singleLine)) {
                            EXPECT_EQ(heightOnWindows, heightInSoftware);
                        }
                        EXPECT_EQ(onWindows, inSoftware);
                    }
                }
            }
        }
    }
}

/// Letters may differ by a pixel in where they stand within a line, the rows they fill may not. Where the
/// rule of a marked letter is the font's decision, too.
TEST_F(SurfaceText, FormattedTextFillsTheSameRows) {
    for (const Sample& sample : samples) {
        for (const Format& format : formats) {
            if (has(format.bits, TextFormat::singleLine) && hasBreaks(sample.text))
                continue;
            if (StringView(sample.text).find(u'&') != StringView::npos)
                continue;
            for (const Long width : widths) {
                for (const Long height : heights) {
                    windows.Cls();
                    software.Cls();
                    Rect rect{2, 3, 2 + width, 3 + height};
                    windows.drawText(sample.text, rect, format.bits);
                    software.drawText(sample.text, rect, format.bits);
                    const Rect onWindows = inkOf(windows.image());
                    const Rect inSoftware = inkOf(software.image());
                    SCOPED_TRACE(::testing::Message()
                                 << sample.name << ", " << format.name << ", " << width << " x " << height);
                    EXPECT_EQ(onWindows.Top, inSoftware.Top);
                    EXPECT_EQ(onWindows.Bottom, inSoftware.Bottom);
                    EXPECT_NEAR(onWindows.Left, inSoftware.Left, 2);
                    EXPECT_NEAR(onWindows.Right, inSoftware.Right, 2);
                }
            }
        }
    }
}

TEST_F(SurfaceText, OddHeightsAreHalvedEachForItself) {
    Rect rect{0, 0, 200, 24};
    const auto line = static_cast<Long>(windows.textHeight(u"A"));
    for (rect.Bottom = 0; rect.Bottom < 40; ++rect.Bottom) {
        Rect same = rect;
        EXPECT_EQ(windows.drawText(u"A", same, TextFormat::singleLine | TextFormat::vCenter),
                  rect.Bottom / 2 - line / 2 + line);
    }
}

TEST_F(SurfaceText, TheExtentOfNothingIsOneLineHighAndNotWide) {
    Rect rect{5, 6, 90, 90};
    const auto line = static_cast<Long>(windows.textHeight(u"A"));
    EXPECT_EQ(windows.drawText(u"", rect, TextFormat::calcRect), line);
    EXPECT_EQ(rect, (Rect{5, 6, 5, 6 + line}));
}

TEST_F(SurfaceText, FormatBitsBeyondTheKnownOnesDoNothing) {
    String text = u"a text that does not fit into this rectangle";
    const String before = text;
    Rect rect{0, 0, 40, 20};
    // Among them: write the shortened text back.
    windows.drawText(text, rect, TextFormat{0x7FFFFFFF & ~0x400});
    EXPECT_EQ(text, before);
    EXPECT_EQ(rect, (Rect{0, 0, 40, 20}));
}

TEST_F(SurfaceText, HugeTextsAndRectanglesAreDrawnAndMeasured) {
    const String text(300'000, u'x');
    Rect rect{-2'000'000'000, -2'000'000'000, 2'000'000'000, 2'000'000'000};
    EXPECT_GT(
        windows.drawText(text, rect, TextFormat::center | TextFormat::singleLine | TextFormat::wordEllipsis),
        0);
    EXPECT_EQ(windows.textWidth(text), 300'000 * windows.textWidth(u"x"));
}

TEST_F(SurfaceText, PrintStartsAtItsPlace) {
    windows.print(7, 11, u"H");
    const Rect ink = inkOf(windows.image());
    EXPECT_GE(ink.Left, 7);
    EXPECT_GE(ink.Top, 11);
    EXPECT_LE(ink.Bottom, 11 + windows.textHeight(u"H"));
}

TEST_F(SurfaceText, AnotherFontShowsAtOnceInMeasuresAndLetters) {
    const Single small = windows.textHeight(u"A");
    windows.setFont({.Name = u"Courier New", .Size = 24, .Bold = true});
    EXPECT_GT(windows.textHeight(u"A"), 2 * small);
    windows.setFont({.Name = u"Courier New", .Size = 9});
    EXPECT_EQ(windows.textHeight(u"A"), small);
}

TEST_F(SurfaceText, UnderlinedTextHasARuleBelowItsLetters) {
    windows.setFont({.Name = u"Courier New", .Size = 24, .Underline = true});
    Rect rect{0, 0, 200, 60};
    windows.drawText(u"   ", rect, TextFormat::left);
    const Rect rule = inkOf(windows.image());
    EXPECT_LT(rule.Top, rule.Bottom);
    EXPECT_GT(rule.Right - rule.Left, rule.Bottom - rule.Top);
}

TEST_F(SurfaceText, SizesThatAreNoSizesAreDrawnSmallest) {
    for (const Single size : {0.0F, -5.0F, std::numeric_limits<Single>::quiet_NaN()}) {
        windows.setFont({.Name = u"Courier New", .Size = size});
        EXPECT_GE(windows.textHeight(u"A"), 1);
        EXPECT_LE(windows.textHeight(u"A"), 4);
    }
}

TEST_F(SurfaceText, EndsAtItsFirstZeroCharacterWhenItIsDrawn) {
    constexpr StringView text(u"HH\0HH", 5);
    const auto painted = [&](StringView each) {
        windows.letBackColor(white);
        Rect rect{10, 2, 100, 50};
        windows.drawText(each, rect, TextFormat::left);
        windows.print(10, 30, each);
        return windows.image().pixels;
    };
    EXPECT_EQ(painted(text), painted(u"HH"));
    Rect whole{0, 0, 100, 100};
    windows.drawText(text, whole, TextFormat::calcRect);
    EXPECT_EQ(whole.Right, static_cast<Long>(windows.textWidth(u"HH")));
    EXPECT_GT(windows.textWidth(text), windows.textWidth(u"HHH"));
}

} // namespace
} // namespace lumtex::testing
