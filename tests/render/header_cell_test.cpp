#include "painted_list.h"

#include <cmath>

namespace lumtex::testing {

/// Headers are 25 pixels tall here (17 for the font, 2 above the text, 6 around); without a border B is 22.
class HeaderCell : public PaintedList {
  protected:
    HeaderCell() { addColumns({60, 60}); }

    void press(Long column) {
        inside.letPressedColumn(column);
        mouseAt(static_cast<Single>(column) * 60 + 10, 5, leftButton);
    }

    /// Strokes and pictures of the first column's background.
    Lines background() {
        Lines strokes;
        for (const std::string& line : repaint()) {
            if (line.rfind("ForeColor", 0) == 0)
                break;
            if (line.rfind("Line", 0) == 0 || line.rfind("Fill", 0) == 0 || line.rfind("PSet", 0) == 0 ||
                line.rfind("Picture", 0) == 0)
                strokes.push_back(line);
        }
        return strokes;
    }
};

struct StyleColors {
    cColorStyle style;
    Lines expected;
};

TEST_F(HeaderCell, NormalLookHasItsStrokesInOrder) {
    list.letColumnBackColor(0x123456);
    const StyleColors table[] = {
        {cXPBlue,
         {"Fill 0,0-59,19 DBEAEB",
          "Line 0,20-60,20 CDDEE2",
          "Line 0,21-60,21 C2D2D6",
          "Line 0,22-60,22 B8C7CB",
          "Line 58,3-58,19 B2C5C7",
          "Line 59,3-59,19 FFFFFF"}},
        {cXPSilver,
         {"Fill 0,0-59,19 FDFAF9",
          "Line 0,20-60,20 EFE7E6",
          "Line 0,21-60,21 DED2D1",
          "Line 0,22-60,22 CEBEBD",
          "Line 58,3-58,19 C8B6B5",
          "Line 59,3-59,19 FFFFFF"}},
        {cCustom,
         {"Fill 0,0-59,19 123456",
          "Line 0,20-60,20 123456",
          "Line 0,21-60,21 123456",
          "Line 0,22-60,22 123456",
          "Line 58,3-58,19 123456",
          "Line 59,3-59,19 FFFFFF"}},
    };
    for (const StyleColors& row : table) {
        list.letColorStyle(row.style);
        EXPECT_EQ(background(), row.expected);
    }
    list.letColorStyle(cXPOlive);
    EXPECT_EQ(background(), table[0].expected) << "Olive shares the values of Blue";
}

TEST_F(HeaderCell, ABorderMovesTopAndFootByOne) {
    list.letBorderVisible(true);
    EXPECT_EQ(background()[0], "Fill 1,1-60,20 DBEAEB");
    EXPECT_EQ(background()[3], "Line 1,23-61,23 B8C7CB");
}

TEST_F(HeaderCell, DownLookHasItsStrokesInOrder) {
    list.letColumnDownColor(0x123456);
    press(0);
    const StyleColors table[] = {
        {cXPOlive,
         {"Fill 0,0-59,22 D8DFDE",
          "Line 0,0-0,22 97A5A5",
          "Line 0,22-60,22 97A5A5",
          "Line 59,0-59,22 97A5A5",
          "Line 1,0-1,22 B8C2C1",
          "Line 1,0-59,0 B8C2C1",
          "Line 2,1-2,22 C9D1D0",
          "Line 2,1-59,1 C9D1D0"}},
        {cXPSilver,
         {"Fill 0,0-59,22 F3ECEC",
          "Line 0,0-0,22 998080",
          "Line 0,22-60,22 998080",
          "Line 59,0-59,22 998080",
          "Line 1,0-1,22 C8B9B9",
          "Line 1,0-59,0 C8B9B9",
          "Line 2,1-2,22 DFD4D4",
          "Line 2,1-59,1 DFD4D4"}},
        {cCustom,
         {"Fill 0,0-59,22 123456",
          "Line 0,0-0,22 123456",
          "Line 0,22-60,22 123456",
          "Line 59,0-59,22 123456",
          "Line 1,0-1,22 123456",
          "Line 1,0-59,0 123456",
          "Line 2,1-2,22 123456",
          "Line 2,1-59,1 123456"}},
    };
    for (const StyleColors& row : table) {
        list.letColorStyle(row.style);
        EXPECT_EQ(background(), row.expected);
    }
}

TEST_F(HeaderCell, TheOliveHoverBarIsMadeOfPixels) {
    list.letColorStyle(cXPOlive);
    mouseAt(10, 5);
    EXPECT_EQ(background(),
              (Lines{"Fill 0,0-59,22 F3F8FA",
                     "PSet 0,20 2572CF",
                     "PSet 1,21 2572CF",
                     "Line 2,22-58,22 2572CF",
                     "PSet 59,20 2572CF",
                     "PSet 58,21 2572CF",
                     "Line 1,20-59,20 5896E3",
                     "Line 2,21-58,21 5896E3",
                     "PSet 0,21 D8E9EC",
                     "PSet 0,22 D8E9EC",
                     "PSet 1,22 D8E9EC",
                     "PSet 59,21 D8E9EC",
                     "PSet 59,22 D8E9EC",
                     "PSet 58,22 D8E9EC"}));
}

TEST_F(HeaderCell, TheHoverBarOfBlueAndSilverIsMadeOfPictures) {
    mouseAt(10, 5);
    for (const cColorStyle style : {cXPBlue, cXPSilver}) {
        list.letColorStyle(style);
        const Lines strokes = background();
        ASSERT_EQ(strokes.size(), 1U + 1U + 55U + 1U) << "face, cap, stamps from 6 to 60, cap";
        EXPECT_EQ(strokes[1], "Picture 0,20");
        EXPECT_EQ(strokes[2], "Picture 6,20");
        EXPECT_EQ(strokes[56], "Picture 60,20") << "one pixel past the cell";
        EXPECT_EQ(strokes[57], "Picture 52,20");
        EXPECT_EQ(pixel(6, 20), 0xFAAD08U) << "first stamp";
        EXPECT_EQ(pixel(7, 20), 0xFAAB00U) << "second stamp";
        EXPECT_EQ(pixel(8, 20), 0xFAAD08U) << "they alternate";
        EXPECT_EQ(pixel(0, 20), 0xF9CC68U);
        EXPECT_EQ(pixel(59, 20), 0xE4C784U);
    }
}

// Wanted: the stamps run one pixel past the cell; the next cell paints over it.
TEST_F(HeaderCell, TheNextCellPaintsOverTheStampThatSticksOut) {
    mouseAt(10, 5);
    repaint();
    EXPECT_EQ(pixel(60, 20), rgbOf(0xCDDEE2));
}

TEST_F(HeaderCell, CustomStyleHasNoHoverBar) {
    list.letColumnHoverColor(0x445566);
    list.letColorStyle(cCustom);
    mouseAt(10, 5);
    EXPECT_EQ(background(), Lines{"Fill 0,0-59,22 445566"});
}

TEST_F(HeaderCell, InANarrowHoverCellTheRightCapWins) {
    list.letColumnWidth(1, 10 * 15);
    mouseAt(3, 5);
    repaint();
    EXPECT_EQ(pixel(1, 20), 0xFAD587U) << "left cap where nothing covers it";
    EXPECT_EQ(pixel(2, 20), 0xFAAA00U) << "right cap over the left one";
    EXPECT_EQ(pixel(9, 20), 0xE4C784U);
}

TEST_F(HeaderCell, AVeryNarrowDownCellPaintsItsLeftLinesAtOrPastTheRightEdge) {
    list.letColumnWidth(1, 2 * 15);
    inside.letPressedColumn(0);
    mouseAt(1, 5, leftButton);
    const Lines strokes = background();
    EXPECT_EQ(strokes[0], "Fill 0,0-1,22 D8DFDE");
    EXPECT_EQ(strokes[3], "Line 1,0-1,22 97A5A5");
    EXPECT_EQ(strokes[6], "Line 2,1-2,22 C9D1D0") << "past the cell";
}

TEST_F(HeaderCell, APressedColumnWithTheMouseOffItPaintsNormal) {
    list.letMoveColumnTextAtDown(true);
    inside.letPressedColumn(0);
    mouseAt(70, 5, leftButton);
    EXPECT_EQ(background()[0], "Fill 0,0-59,19 DBEAEB");
    EXPECT_EQ(drawn().lines("Text")[0], "Text '' 5,2-55,25 40020") << "nor does its text move";
}

TEST_F(HeaderCell, TextMovesWithThePressOnlyWhereItMay) {
    press(0);
    EXPECT_EQ(repainted("Text")[0], "Text '' 5,2-55,25 40020") << "the background alone shows the press";
    list.letMoveColumnTextAtDown(true);
    EXPECT_EQ(repainted("Text")[0], "Text '' 6,3-56,26 40020");
    // Wanted: the mouse button does not decide here, unlike for the look.
    inside.letButton(0);
    EXPECT_EQ(repainted("Text")[0], "Text '' 6,3-56,26 40020");
}

TEST_F(HeaderCell, TextColourFollowsTheLook) {
    list.letColumnForeColor(1, 0x1);
    list.letColumnForeColorHover(1, 0x2);
    list.letColumnForeColorDown(1, 0x3);
    EXPECT_EQ(repainted("ForeColor")[0], "ForeColor 1");
    mouseAt(10, 5);
    EXPECT_EQ(repainted("ForeColor")[0], "ForeColor 2");
    press(0);
    EXPECT_EQ(repainted("ForeColor")[0], "ForeColor 3");
}

TEST_F(HeaderCell, AlignmentBecomesFormatBits) {
    list.letColumnAlignment(1, cColumnCenter);
    list.letColumnAlignment(2, cColumnRight);
    const Lines texts = repainted("Text");
    EXPECT_EQ(texts[0], "Text '' 5,2-55,25 40021");
    EXPECT_EQ(texts[1], "Text '' 65,2-115,25 40022");
    list.letColumnAlignment(1, static_cast<cColumnHeaderAlign>(0x400));
    EXPECT_EQ(repainted("Text")[0], "Text '' 5,2-55,25 40020") << "no other bit gets in";
}

TEST_F(HeaderCell, ColumnTextYMakesTheBandTallerByTheSameAmount) {
    EXPECT_EQ(inside.ColumnHeight(), 25);
    list.letColumnTextY(0);
    EXPECT_EQ(inside.ColumnHeight(), 17 + 6);
    list.letColumnTextY(10);
    EXPECT_EQ(inside.ColumnHeight(), 17 + 10 + 6);
    EXPECT_EQ(repainted("Text")[0], "Text '' 5,10-55,33 40020");
    list.letHideColumnHeaders(true);
    EXPECT_EQ(inside.ColumnHeight(), 0);
}

struct IconPlace {
    const char* name;
    cColumnHeaderAlign text;
    cColumnHeaderAlign icon;
    const char* rect;
    const char* picture;
};

TEST_F(HeaderCell, IconsStandByTheirAlignmentAndMakeRoomAtTheSameSide) {
    list.setColumnIcon(1, plainPicture(32, 32));
    const IconPlace table[] = {
        {"both left", cColumnLeft, cColumnLeft, "23,2-55,25", "5,2"},
        {"both right", cColumnRight, cColumnRight, "5,2-37,25", "39,2"},
        {"opposite", cColumnLeft, cColumnRight, "5,2-55,25", "39,2"},
        {"icon in the middle", cColumnLeft, cColumnCenter, "5,2-55,25", "27,2"},
        {"text in the middle", cColumnCenter, cColumnLeft, "5,2-55,25", "5,2"},
    };
    for (const IconPlace& row : table) {
        list.letColumnAlignment(1, row.text);
        list.letColumnIconAlignment(1, row.icon);
        const std::string text = repainted("Text")[0];
        EXPECT_EQ(text.substr(8, text.rfind(' ') - 8), row.rect) << row.name;
        EXPECT_EQ(drawn().lines("Picture"), Lines{std::string("Picture ") + row.picture + " 16x16"})
            << row.name;
    }
}

// Wanted: the list's IconW, not ColumnIconW, and the shift counts twice.
TEST_F(HeaderCell, TheTextsRoomIsTheListsIconWidthAndTheShiftCountsTwice) {
    list.setColumnIconDown(1, plainPicture(8, 8));
    list.letIconW(10);
    list.letColumnIconW(30);
    list.letColumnIconH(12);
    list.letMoveColumnTextAtDown(true);
    press(0);
    EXPECT_EQ(repainted("Text")[0], "Text '' 19,3-56,26 40020") << "5 + 1, then 10 + 2 + 1";
    EXPECT_EQ(drawn().lines("Picture"), Lines{"Picture 6,3 30x12"});
}

TEST_F(HeaderCell, TheIconFollowsTheLook) {
    list.setColumnIconHover(1, plainPicture(4, 4));
    EXPECT_TRUE(repainted("Picture").empty()) << "normal: none was set";
    list.letColorStyle(cCustom);
    mouseAt(10, 5);
    EXPECT_EQ(repainted("Picture").size(), 1U);
    press(0);
    EXPECT_TRUE(repainted("Picture").empty()) << "down: none was set";
}

TEST_F(HeaderCell, DrawColumnIconsFalseHidesThem) {
    list.setColumnIcon(1, plainPicture(4, 4));
    list.letDrawColumnIcons(false);
    EXPECT_TRUE(repainted("Picture").empty());
    EXPECT_EQ(drawn().lines("Text")[0], "Text '' 5,2-55,25 40020") << "and their room";
}

TEST_F(HeaderCell, AColumnOfThreeTwipsOrLessShowsNoIcon) {
    list.setColumnIcon(1, plainPicture(4, 4));
    list.letColumnWidth(1, 3);
    EXPECT_TRUE(repainted("Picture").empty());
    EXPECT_EQ(drawn().lines("Text").size(), 2U) << "its pixel width is not 0";
    list.letColumnWidth(1, 4);
    EXPECT_EQ(repainted("Picture").size(), 1U);
}

struct ArrowPlace {
    const char* name;
    cColumnHeaderAlign alignment;
    Single left;
};

TEST_F(HeaderCell, TheSortArrowStandsBesideTheText) {
    list.letColumnWidth(1, 100 * 15);
    list.letColumnText(1, u"abc");
    const Single tw = window().surface().textWidth(u"abc");
    const ArrowPlace table[] = {
        {"left", cColumnLeft, 5 + tw + 5},
        {"right", cColumnRight, 100 - 5 - tw - 5 - 8},
        {"centre", cColumnCenter, 5 + (100 + tw) / 2},
    };
    for (const ArrowPlace& row : table) {
        list.letColumnAlignment(1, row.alignment);
        const std::string x = std::to_string(std::lrint(row.left));
        const std::string right = std::to_string(std::lrint(row.left + 8));
        const std::string tip = std::to_string(std::lrint(row.left + 4));
        inside.letSortMark(0, 0);
        EXPECT_EQ(repainted("Polygon"), Lines{"Polygon " + x + ",10 " + right + ",10 " + tip + ",14"})
            << row.name;
        inside.letSortMark(0, 1);
        EXPECT_EQ(repainted("Polygon"), Lines{"Polygon " + x + ",15 " + right + ",15 " + tip + ",10"})
            << row.name;
    }
}

TEST_F(HeaderCell, RightAlignedTextAndIconLeaveTheArrowAtTheTextsUsualPlace) {
    list.letColumnWidth(1, 100 * 15);
    list.letColumnText(1, u"abc");
    list.letColumnAlignment(1, cColumnRight);
    inside.letSortMark(0, 0);
    const Lines without = repainted("Polygon");
    list.setColumnIcon(1, plainPicture(4, 4));
    list.letColumnIconAlignment(1, cColumnRight);
    EXPECT_EQ(repainted("Polygon"), without);
    EXPECT_EQ(drawn().lines("Text")[0], "Text 'abc' 5,2-77,25 40022") << "while the text moved";
}

TEST_F(HeaderCell, TheArrowIsGreyAndLeavesTheFillTransparent) {
    list.letColumnText(1, u"abc");
    inside.letSortMark(0, 0);
    repaint();
    const auto tip = static_cast<Long>(5 + window().surface().textWidth(u"abc") + 5 + 4);
    EXPECT_EQ(pixel(tip, 12), 0x999999U);
}

TEST_F(HeaderCell, TheEmptyFieldReachesTheRightEdge) {
    list.letEmptyColumnFieldColor(0x123456);
    const StyleColors table[] = {
        {cXPBlue,
         {"Fill 120,0-200,19 D8EAEE",
          "Line 120,20-200,20 CDDEE2",
          "Line 120,21-200,21 C2D2D6",
          "Line 120,22-200,22 B8C7CB"}},
        {cXPSilver,
         {"Fill 120,0-200,19 E5E4E1",
          "Line 120,20-200,20 D9D9D5",
          "Line 120,21-200,21 CECECA",
          "Line 120,22-200,22 C3C3BF"}},
        {cCustom,
         {"Fill 120,0-200,19 123456",
          "Line 120,20-200,20 123456",
          "Line 120,21-200,21 123456",
          "Line 120,22-200,22 123456"}},
    };
    for (const StyleColors& row : table) {
        list.letColorStyle(row.style);
        repaint();
        Lines field = drawn().lines("Fill 120");
        for (const std::string& line : drawn().lines("Line 120,2"))
            field.push_back(line);
        EXPECT_EQ(field, row.expected);
    }
}

TEST_F(HeaderCell, TheEmptyFieldGoesOnPastTheSurfaceByItsWidth) {
    list.letEmptyColumnFieldWidth(30 * 15);
    list.letColumnWidth(1, 140 * 15);
    EXPECT_EQ(repainted("Fill 200"), Lines{"Fill 200,0-230,19 D8EAEE"});
}

TEST_F(HeaderCell, AnUnknownStyleHasNoEmptyField) {
    list.letColorStyle(static_cast<cColorStyle>(50));
    EXPECT_TRUE(repainted("Fill 120").empty());
    EXPECT_EQ(repainted("Fill 0").size(), 1U) << "its headers count as custom";
}

TEST_F(HeaderCell, HiddenHeadersPaintNothing) {
    list.letHideColumnHeaders(true);
    EXPECT_TRUE(repainted("Fill").empty());
    EXPECT_TRUE(drawn().lines("Text").empty());
}

} // namespace lumtex::testing
