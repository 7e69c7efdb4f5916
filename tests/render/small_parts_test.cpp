#include "drawing/draw_arrow.h"
#include "drawing/font_attributes.h"
#include "drawing/gradient.h"
#include "drawing/picture_size.h"
#include "painted_list.h"

namespace lumtex::testing {

namespace {

std::uint32_t at(raster::RasterSurface& surface, Long x, Long y) {
    return surface.pixels()[static_cast<std::size_t>(y * surface.scaleWidth() + x)] & 0xFFFFFFU;
}

} // namespace

TEST(Gradient, RunsFromLeftToRight) {
    raster::RasterSurface surface(4, 2, testFonts());
    const Rect rect{0, 0, 4, 2};
    drawing::DrawGradient(surface, &rect, 0x000000, 0x0000C8, drawing::GradientDirection::leftToRight);
    for (Long y = 0; y < 2; ++y) {
        EXPECT_EQ(at(surface, 0, y), 0x000000U);
        EXPECT_EQ(at(surface, 1, y), 0x320000U);
        EXPECT_EQ(at(surface, 2, y), 0x640000U);
        EXPECT_EQ(at(surface, 3, y), 0x960000U);
    }
}

TEST(Gradient, RunsFromBottomToTopAndMovesOnAtEveryPixelOfItsStrip) {
    raster::RasterSurface surface(4, 2, testFonts());
    const Rect rect{0, 0, 4, 2};
    drawing::DrawGradient(surface, &rect, 0x000000, 0x000050, drawing::GradientDirection::bottomToTop);
    const std::uint32_t lower[] = {0x000000, 0x0A0000, 0x140000, 0x1E0000};
    const std::uint32_t upper[] = {0x280000, 0x320000, 0x3C0000, 0x460000};
    for (Long x = 0; x < 4; ++x) {
        EXPECT_EQ(at(surface, x, 1), lower[x]);
        EXPECT_EQ(at(surface, x, 0), upper[x]);
    }
}

TEST(Gradient, OfAnExtentBelowZeroMirrorsToTheOtherSideOfItsFirstPixel) {
    raster::RasterSurface surface(6, 3, testFonts());
    const Rect leftwards{4, 0, 0, 2};
    drawing::DrawGradient(surface, &leftwards, 0x000000, 0x000050, drawing::GradientDirection::bottomToTop);
    const std::uint32_t lower[] = {0xFFFFFF, 0x1E0000, 0x140000, 0x0A0000, 0x000000, 0xFFFFFF};
    const std::uint32_t upper[] = {0xFFFFFF, 0x460000, 0x3C0000, 0x320000, 0x280000, 0xFFFFFF};
    for (Long x = 0; x < 6; ++x) {
        EXPECT_EQ(at(surface, x, 1), lower[x]) << x;
        EXPECT_EQ(at(surface, x, 0), upper[x]) << x;
    }
    surface.Cls();
    const Rect upwards{1, 2, 3, 0};
    drawing::DrawGradient(surface, &upwards, 0x000000, 0x000050, drawing::GradientDirection::leftToRight);
    for (Long y = 0; y < 3; ++y) {
        EXPECT_EQ(at(surface, 1, y), y == 0 ? 0xFFFFFFU : 0x000000U) << y;
        EXPECT_EQ(at(surface, 2, y), y == 0 ? 0xFFFFFFU : 0x280000U) << y;
    }
}

TEST(Gradient, ChannelsAreRoundedHalfToEven) {
    raster::RasterSurface surface(2, 1, testFonts());
    const Rect rect{0, 0, 2, 1};
    drawing::DrawGradient(surface, &rect, 0x000000, 0x000001, drawing::GradientDirection::leftToRight);
    EXPECT_EQ(at(surface, 1, 0), 0x000000U) << "0.5 rounds to 0";
    drawing::DrawGradient(surface, &rect, 0x000001, 0x000002, drawing::GradientDirection::leftToRight);
    EXPECT_EQ(at(surface, 1, 0), 0x020000U) << "1.5 rounds to 2";
}

TEST(Gradient, WhatCannotBePaintedPaintsNothing) {
    raster::RasterSurface inner(4, 4, testFonts());
    RecordingSurface surface(inner);
    const Rect noWidth{2, 0, 2, 4};
    const Rect noHeight{0, 2, 4, 2};
    const Rect turned{4, 4, 0, 0};
    const Rect all{0, 0, 4, 4};
    const Rect huge{-0x7FFFFFFF, 0, 0x7FFFFFFF, 1};
    drawing::DrawGradient(surface, nullptr, 0, 0xFF, drawing::GradientDirection::leftToRight);
    drawing::DrawGradient(surface, &noWidth, 0, 0xFF, drawing::GradientDirection::leftToRight);
    drawing::DrawGradient(surface, &noHeight, 0, 0xFF, drawing::GradientDirection::bottomToTop);
    drawing::DrawGradient(surface, &turned, 0, 0xFF, drawing::GradientDirection::leftToRight);
    drawing::DrawGradient(surface, &turned, 0, 0xFF, drawing::GradientDirection::bottomToTop);
    drawing::DrawGradient(surface, &all, 0, 0xFF, static_cast<drawing::GradientDirection>(2));
    drawing::DrawGradient(surface, &huge, 0, 0xFF, drawing::GradientDirection::leftToRight);
    EXPECT_TRUE(surface.log.empty());
    drawing::DrawGradient(surface, &noHeight, 0, 0xFF, drawing::GradientDirection::leftToRight);
    EXPECT_EQ(surface.log, Lines{"Stretch 0,2 4x0 from 4x1"})
        << "no division by the height; it paints nothing";
    EXPECT_EQ(at(inner, 0, 2), 0xFFFFFFU);
}

TEST(SortArrow, PointsDownForZeroUpForOneAndNowhereElse) {
    raster::RasterSurface inner(20, 20, testFonts());
    RecordingSurface surface(inner);
    drawing::DrawArrow(surface, 0, 2, 3);
    drawing::DrawArrow(surface, 1, 2, 3);
    drawing::DrawArrow(surface, 2, 2, 3);
    drawing::DrawArrow(surface, 0, 2.5F, 7.5F);
    EXPECT_EQ(
        surface.lines("Polygon"),
        (Lines{
            "Polygon 2,3 10,3 6,7", "Polygon 2,8 10,8 6,3", "Polygon 0,0 0,0 0,0", "Polygon 2,8 10,8 6,12"}));
}

TEST(SortArrow, IsFilledAndLeavesTheSurfaceTransparent) {
    raster::RasterSurface surface(20, 20, testFonts());
    drawing::DrawArrow(surface, 0, 2, 3);
    EXPECT_EQ(at(surface, 6, 4), 0x999999U) << "inside";
}

TEST(CloneFontTest, GivesNoneForNoneElseAFontOfItsOwn) {
    EXPECT_EQ(drawing::CloneFont(nullptr), nullptr);
    const auto font = std::make_shared<Font>(FontSpec{.Name = u"a", .Size = 3, .Underline = true});
    const FontRef clone = drawing::CloneFont(font);
    EXPECT_NE(clone, font);
    EXPECT_EQ(clone->spec, font->spec);
}

TEST(PictureSize, ComesBackFromHimetricUnits) {
    const raster::RasterSurface surface(1, 1, testFonts());
    for (const Long size : {0, 1, 3, 13, 16, 17, 32, 1000}) {
        const BitmapPicture picture(Bitmap(size, size));
        EXPECT_EQ(drawing::GetPictureWidth(surface, picture), size);
        EXPECT_EQ(drawing::GetPictureHeight(surface, picture), size);
    }
    EXPECT_EQ(BitmapPicture(Bitmap(13, 13)).Width(), 344);
}

TEST(Artwork, HasItsSizes) {
    const drawing::ListViewArtwork& artwork = drawing::ListViewArtwork::standard();
    for (const std::size_t i : {1, 2}) {
        EXPECT_EQ(artwork.img[i]->bitmap().width, 13);
        EXPECT_EQ(artwork.img[i]->bitmap().height, 13);
        EXPECT_EQ(artwork.imgd[i]->bitmap().width, 13);
        EXPECT_EQ(artwork.imgd[i]->bitmap().height, 13);
    }
    const Long widths[] = {6, 1, 1, 8};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(artwork.imgCol[i]->bitmap().width, widths[i]);
        EXPECT_EQ(artwork.imgCol[i]->bitmap().height, 3);
    }
    EXPECT_EQ(artwork.imgDefault->bitmap().width, 16);
    EXPECT_EQ(artwork.imgDefault->bitmap().height, 3);
    EXPECT_EQ(artwork.imgResize->bitmap().width, 32);
    EXPECT_EQ(artwork.imgResize->bitmap().height, 32);
}

namespace {

/// Pixels as rows of six hexadecimal digits each.
std::vector<std::string> rowsOf(const PictureRef& picture) {
    constexpr const char* digits = "0123456789ABCDEF";
    std::vector<std::string> rows;
    const Bitmap& bitmap = picture->bitmap();
    for (Long y = 0; y < bitmap.height; ++y) {
        std::string row;
        for (Long x = 0; x < bitmap.width; ++x) {
            for (int shift = 20; shift >= 0; shift -= 4)
                row += digits[(bitmap.at(x, y) >> static_cast<unsigned>(shift)) & 0xFU];
            row += ' ';
        }
        row.pop_back();
        rows.push_back(row);
    }
    return rows;
}

/// Rows of letters, each replaced by its colour.
std::vector<std::string> inked(const std::vector<std::string>& rows, const std::vector<std::string>& inks) {
    std::vector<std::string> result;
    for (const std::string& row : rows) {
        std::string line;
        for (const char letter : row)
            line += inks[static_cast<std::size_t>(letter - '0')] + " ";
        line.pop_back();
        result.push_back(line);
    }
    return result;
}

} // namespace

TEST(Artwork, TheHoverBarsPiecesHaveTheirPixels) {
    const auto& pieces = drawing::ListViewArtwork::standard().imgCol;
    EXPECT_EQ(rowsOf(pieces[0]),
              (Lines{"F9CC68 FAD587 FCDF9D FBCF70 FAC042 FCB825",
                     "F2E0B5 FBBA2F FCE0A6 FAE4B2 FADC9C FCD685",
                     "ECE9D8 EFE2C4 F5CC71 FBC553 FABC39 FBB521"}));
    EXPECT_EQ(rowsOf(pieces[1]), (Lines{"FAAD08", "F9C654", "FAB117"}));
    EXPECT_EQ(rowsOf(pieces[2]), (Lines{"FAAB00", "FCC247", "FAB218"}));
    EXPECT_EQ(rowsOf(pieces[3]),
              (Lines{"FAAA00 F4A700 F2A400 F0A400 E89E00 E29A00 DE9600 E4C784",
                     "F9BC3B F2B83A EDA710 E89F00 DF9700 DD9600 E5A010 ECE9D8",
                     "F4AD14 ECA614 E39C05 DD9600 DA9D1A DFBE71 ECE9D8 ECE9D8"}));
}

TEST(Artwork, TheCheckBoxesHaveTheirPixels) {
    const drawing::ListViewArtwork& artwork = drawing::ListViewArtwork::standard();
    EXPECT_EQ(rowsOf(artwork.img[1]),
              inked({"0000000000000",
                     "0111112335560",
                     "0111223456670",
                     "0112234566670",
                     "0123344667880",
                     "0123456676880",
                     "0334466688880",
                     "0345667688990",
                     "0356668888990",
                     "0566787889990",
                     "0566888899990",
                     "0678788999990",
                     "0000000000000"},
                    {"185284",
                     "DEDED6",
                     "DEDEDE",
                     "E7E7DE",
                     "E7E7E7",
                     "EFEFE7",
                     "EFEFEF",
                     "F7F7EF",
                     "F7F7F7",
                     "FFFFFF"}));
    EXPECT_EQ(
        rowsOf(artwork.img[2]),
        inked({"0000000000000",
               "0222222344560",
               "0222233445650",
               "0222333551670",
               "0223334511770",
               "0221355111770",
               "0231151117780",
               "0341111177870",
               "0445111778880",
               "0456517787880",
               "0565777888880",
               "0667778878880",
               "0000000000000"},
              {"185284", "21A521", "E7E7DE", "E7E7E7", "EFEFE7", "EFEFEF", "F7F7EF", "F7F7F7", "FFFFFF"}));
    EXPECT_EQ(rowsOf(artwork.imgd[1]),
              inked({"0000000000000",
                     "0111111111110",
                     "0111111111110",
                     "0111111111110",
                     "0111111111110",
                     "0111111111110",
                     "0111111111110",
                     "0111111111110",
                     "0111111111110",
                     "0111111111110",
                     "0111111111110",
                     "0111111111110",
                     "0000000000000"},
                    {"CECEBD", "FFFFFF"}));
    EXPECT_EQ(rowsOf(artwork.imgd[2]),
              inked({"0000000000000",
                     "0111111111110",
                     "0111111111110",
                     "0111111110110",
                     "0111111100110",
                     "0110111000110",
                     "0110010001110",
                     "0110000011110",
                     "0111000111110",
                     "0111101111110",
                     "0111111111110",
                     "0111111111110",
                     "0000000000000"},
                    {"CECEBD", "FFFFFF"}));
}

using DesignView = PaintedList;

TEST_F(DesignView, ShowsTheControlsName) {
    host.userMode = false;
    host.name = u"lmListView7";
    list.letBorderVisible(true);
    addColumns({60});
    list.letDefaultColumnForeColor(0x112233);
    EXPECT_EQ(repaint(),
              (Lines{"Cls",
                     "BackColor FFFFFF",
                     "Font Verdana 9.75",
                     "ForeColor 112233",
                     "Print 3,3 lmListView7",
                     "Box 0,0-199,99 B99D7F"}));
}

TEST_F(DesignView, ShowsACheckBoxInCheckBoxStyle) {
    host.userMode = false;
    list.letStyle(cCheckBoxes);
    list.letEnabled(false);
    list.letBackColorDisabled(0x123456);
    EXPECT_EQ(repaint(),
              (Lines{"Cls",
                     "BackColor 123456",
                     "Font Verdana 9.75",
                     "ForeColor 0",
                     "Picture 3,5",
                     "Print 19,3 lmListView1"}));
}

TEST_F(DesignView, DoesNotTouchTheBusyFlag) {
    host.userMode = false;
    inside.holdPainting(true);
    EXPECT_FALSE(repaint().empty());
    EXPECT_TRUE(says(inside.painting(), "held=yes"));
}

using SelectionColour = PaintedList;

TEST_F(SelectionColour, FollowsTheStyleAndIsZeroForAnUnknownOne) {
    list.letValueColor(0x123456);
    struct {
        Long style;
        OLE_COLOR color;
    } const table[] = {{0, 0xC56A31}, {1, 0xBFB4B2}, {2, 0x70A093}, {99, 0x123456}, {3, 0}};
    for (const auto& row : table) {
        list.letColorStyle(static_cast<cColorStyle>(row.style));
        EXPECT_EQ(inside.aktValueColor(), row.color) << row.style;
    }
}

TEST(Gradient, FarBeyondTheSurfaceIsWorkedOutWhereItCanBeSeen) {
    raster::RasterSurface surface(4, 100, testFonts());
    // One step of blue for each 8,000,000 rows, counted from below.
    const Rect tall{0, -1599999950, 4, 440000050};
    drawing::DrawGradient(surface, &tall, 0x000000, 0xFF0000, drawing::GradientDirection::bottomToTop);
    EXPECT_EQ(surface.image().at(0, 99), 0xFF000037U);
    const Rect wide{-1599999998, 0, 440000002, 100};
    drawing::DrawGradient(surface, &wide, 0x000000, 0xFF0000, drawing::GradientDirection::leftToRight);
    EXPECT_EQ(surface.image().at(0, 0), 0xFF0000C8U);
    const Rect beside{-2000000000, 0, 0, 100};
    drawing::DrawGradient(surface, &beside, 0x000000, 0x00FF00, drawing::GradientDirection::leftToRight);
    EXPECT_EQ(surface.image().at(0, 0), 0xFF0000C8U);
}

} // namespace lumtex::testing
