/// How a thumb looks, and how it follows the pointer.
#include "bar_fixture.h"

namespace lumtex::testing {

using Inside = bars::ScrollInspector;
using Thumb = BothBars;
INSTANTIATE_TEST_SUITE_P(Axes,
                         Thumb,
                         ::testing::Values(bars::Axis::vertical, bars::Axis::horizontal),
                         axisName);

/// The picture of a scheme's look, by the index that a paint chose.
TEST_P(Thumb, ChoosesItsPictureByHoverAndPress) {
    const bars::ThumbArtwork& img = bars::ScrollArtwork::standard().thumbOf(GetParam());
    const auto bodyIs = [&](std::size_t index) {
        // The first row of the body, as far as no edge covers it.
        const Bitmap shown = drawn(thumb().window()).image();
        const Bitmap& body = img[index]->bitmap();
        const bool same = (shown.at(2, 1) & 0xFFFFFFU) == (body.at(isVertical() ? 1 : 0, 0) & 0xFFFFFFU);
        return same && shown.at(2, 1) == shown.at(2, isVertical() ? 40 : 12);
    };
    for (const Long style : {0, 1, 2}) {
        const auto base = static_cast<std::size_t>(style) * 6;
        bar().letColorStyle(style);
        desktop.move({500, 500});
        EXPECT_TRUE(bodyIs(base + 3)) << "normal, style " << style;
        moveTo(40);
        EXPECT_TRUE(bodyIs(base + 2)) << "hover, style " << style;
        desktop.press();
        EXPECT_TRUE(bodyIs(base + 1)) << "pressed, style " << style;
        moveTo(40, 60);
        EXPECT_FALSE(Inside::over(thumb()));
        thumb().letC(style);
        EXPECT_TRUE(bodyIs(base + 1)) << "a press that has slid off keeps the pressed look, style " << style;
        desktop.release();
        EXPECT_TRUE(bodyIs(base + 3)) << "released outside, style " << style;
    }
}

struct Edges {
    Long style;
    std::string c0;
    std::string c3;
    std::string c4;
};
const std::array<Edges, 3> edges{{{0, "E5EDEE", "D39F7C", "DCB59A"},
                                  {1, "E5EDEE", "AC9E9D", "9A8C8B"},
                                  {2, "E5EDEE", "619082", "75998F"}}};

// Wanted: the height is in twips, so that the first row of the body covers the whole thumb.
// Wanted: the box of a horizontal thumb ends one pixel further in.
TEST_P(Thumb, IsPaintedInItsStrokes) {
    for (const Edges& edge : edges) {
        const Lines lines = drawnBy(thumb().window(), [&] { thumb().letC(edge.style); });
        Lines expected;
        if (isVertical())
            expected = {"Cls",
                        "Picture 1,0 14x749",
                        "Box 0,0-15,48 FFFFFF",
                        "Line 2,49-15,49 " + edge.c3,
                        "PSet 0,49 " + edge.c0,
                        "PSet 0,48 " + edge.c4,
                        "PSet 1,49 " + edge.c4,
                        "PSet 15,49 " + edge.c0,
                        "PSet 15,48 " + edge.c4,
                        "Picture 4,21.5"};
        else
            expected = {"Cls",
                        "Picture 1,0 48x239",
                        "Box 0,0-48,14 FFFFFF",
                        "Line 2,15-49,15 " + edge.c3,
                        "PSet 0,15 " + edge.c0,
                        "PSet 0,14 " + edge.c4,
                        "PSet 1,15 " + edge.c4,
                        "PSet 49,15 " + edge.c0,
                        "PSet 49,14 " + edge.c4,
                        "Picture 21.5,4"};
        if (edge.style == 1) {
            const Lines silver = isVertical() ? Lines{"Line 0,1-0,48 A29594",
                                                      "Line 15,1-15,48 A29594",
                                                      "PSet 1,0 A29594",
                                                      "PSet 15,0 A29594",
                                                      "Line 14,2-14,47 FFFFFF",
                                                      "Line 1,0-14,0 BFB7B7",
                                                      "Line 1,48-14,48 DFD1D0"}
                                              : Lines{"Line 0,1-0,14 A29594",
                                                      "Line 49,1-49,14 A29594",
                                                      "PSet 1,0 A29594",
                                                      "PSet 49,0 A29594",
                                                      "Line 48,2-48,13 FFFFFF",
                                                      "Line 1,0-48,0 BFB7B7",
                                                      "Line 1,14-48,14 DFD1D0"};
            expected.insert(expected.end(), silver.begin(), silver.end());
        }
        EXPECT_TRUE(sameLog(lines, expected)) << "style " << edge.style;
    }
}

TEST_P(Thumb, OfSilverHasADarkFrameUnderThePointer) {
    thumb().letC(1);
    moveTo(40);
    const Lines lines = drawnBy(thumb().window(), [&] { thumb().letC(1); });
    const Lines expected = isVertical() ? Lines{"Line 0,1-0,48 65665B",
                                                "Line 15,1-15,48 65665B",
                                                "Line 2,49-15,49 65665B",
                                                "Line 1,0-14,0 65665B",
                                                "Line 1,48-14,48 DFD1D0"}
                                        : Lines{"Line 0,1-0,14 65665B",
                                                "Line 49,1-49,14 65665B",
                                                "Line 2,15-49,15 65665B",
                                                "Line 1,0-48,0 65665B",
                                                "Line 1,14-48,14 DFD1D0"};
    ASSERT_GT(lines.size(), expected.size());
    EXPECT_TRUE(sameLog({lines.end() - static_cast<std::ptrdiff_t>(expected.size()), lines.end()}, expected));
}

TEST_P(Thumb, ShorterThan14HasNoGrip) {
    bar().letMax(86);
    EXPECT_EQ(thumbLength(), 14);
    const auto pictures = [&] {
        const Lines lines = drawnBy(thumb().window(), [&] { thumb().letC(0); });
        return std::count_if(lines.begin(), lines.end(), [](const std::string& line) {
            return line.rfind("Picture", 0) == 0;
        });
    };
    EXPECT_EQ(pictures(), 2);
    bar().letMax(87);
    EXPECT_EQ(thumbLength(), 13);
    EXPECT_EQ(pictures(), 1);
}

TEST_P(Thumb, OfTheCustomStyleShowsItsPressOnlyUnderThePointer) {
    thumb().letBar(0x111111);
    thumb().letBarDown(0x222222);
    thumb().letBarHover(0x333333);
    const auto look = [&] { return drawnBy(thumb().window(), [&] { thumb().letC(99); }); };
    EXPECT_EQ(look(), (Lines{"Cls", "BackColor 111111"}));
    moveTo(40);
    EXPECT_EQ(look(), (Lines{"Cls", "BackColor 333333"}));
    desktop.press();
    EXPECT_EQ(look(), (Lines{"Cls", "BackColor 222222"}));
    moveTo(40, 60);
    EXPECT_EQ(look(), (Lines{"Cls", "BackColor 111111"})) << "slid off";
}

TEST_P(Thumb, KeepsThePressedLookWhenAPropertyIsSetDuringADrag) {
    pressAt(40);
    moveTo(45);
    const Bitmap pressed = drawn(thumb().window()).image();
    bar().letColorStyle(0);
    bar().letValue(30);
    EXPECT_EQ(drawn(thumb().window()).image(), pressed);
    desktop.release();
    EXPECT_NE(drawn(thumb().window()).image(), pressed);
}

TEST_P(Thumb, HoldsTheMouseWhileThePointerIsOverIt) {
    moveTo(40);
    EXPECT_EQ(desktop.captured(), thumb().window().hWnd());
    EXPECT_TRUE(Inside::over(thumb()));
    desktop.move({250, 250});
    EXPECT_EQ(desktop.captured(), 0) << "given back on leaving";
    EXPECT_FALSE(Inside::over(thumb()));
}

TEST_P(Thumb, CountsItsRightAndLowerBoundAsInside) {
    struct Row {
        Single x;
        Single y;
        bool over;
    };
    const Single w = thumb().window().Width();
    const Single h = thumb().window().Height();
    for (const Row row : {Row{0, 0, true},
                          Row{w, h, true},
                          Row{-1, 5, false},
                          Row{5, -1, false},
                          Row{w + 1, 5, false},
                          Row{5, h + 1, false}}) {
        thumb().UserControl_MouseMove(0, 0, row.x, row.y);
        EXPECT_EQ(Inside::over(thumb()), row.over) << row.x << "," << row.y;
    }
}

TEST_P(Thumb, LeavesTheMouseToThePlatformDuringAPress) {
    pressAt(40);
    EXPECT_EQ(desktop.captured(), thumb().window().hWnd());
    desktop.move({290, 290});
    EXPECT_EQ(desktop.captured(), thumb().window().hWnd()) << "not given back";
    desktop.release();
    EXPECT_EQ(desktop.captured(), 0);
}

TEST_P(Thumb, IsNotRepaintedByTheMovesOfAPress) {
    pressAt(40);
    EXPECT_EQ(drawnBy(thumb().window(), [&] { moveTo(45); }), Lines{});
}

} // namespace lumtex::testing
