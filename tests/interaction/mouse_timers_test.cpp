#include "played_list.h"

namespace lumtex::testing {

using std::chrono::milliseconds;

class MouseTimers : public PlayedList {};

TEST_F(MouseTimers, BothAreOffAtTheStartAndTickEachMillisecond) {
    EXPECT_FALSE(inside.mouseInTimer().Enabled());
    EXPECT_FALSE(inside.mouseActionTimer().Enabled());
    EXPECT_EQ(inside.mouseInTimer().Interval(), 1);
    EXPECT_EQ(inside.mouseActionTimer().Interval(), 1);
}

TEST_F(MouseTimers, TheMouseIsInsideFromTheFirstTickOn) {
    fill(2);
    move(cell(1, 1));
    EXPECT_TRUE(says(inside.mouse(), "inside=no"));
    desktop.advance(milliseconds(1));
    EXPECT_TRUE(says(inside.mouse(), "inside=yes"));
    EXPECT_TRUE(inside.mouseInTimer().Enabled());
}

TEST_F(MouseTimers, TheOutermostPixelCountsAsOutside) {
    fill(2);
    for (const At at : {At{0, 50}, At{50, 0}}) {
        move(at);
        desktop.advance(milliseconds(1));
        EXPECT_TRUE(says(inside.mouse(), "inside=no"));
    }
    move({1, 1});
    desktop.advance(milliseconds(1));
    EXPECT_TRUE(says(inside.mouse(), "inside=yes"));
}

TEST_F(MouseTimers, LeavingEndsTheHoverWithOnePaintAndStopsTheTimer) {
    fill(2);
    hover(header(1));
    move(header(1));
    ASSERT_TRUE(says(inside.header(), "hover=1"));
    window().letMousePointer(CursorShape::custom);
    move({500, 500});
    EXPECT_TRUE(says(inside.mouse(), "inside=yes")) << "nobody has noticed yet";
    EXPECT_EQ(paintsOf([&] { desktop.advance(milliseconds(1)); }), 1);
    EXPECT_TRUE(says(inside.mouse(), "inside=no"));
    EXPECT_TRUE(says(inside.header(), "hover=none"));
    EXPECT_EQ(window().MousePointer(), CursorShape::standard);
    EXPECT_FALSE(inside.mouseInTimer().Enabled());
    move(header(1));
    EXPECT_TRUE(inside.mouseInTimer().Enabled());
}

TEST_F(MouseTimers, AChildOverTheListCountsAsOutside) {
    fill(30);
    hover(cell(1, 1));
    ASSERT_TRUE(inside.vertical().Visible());
    move({inside.vertical().Left() + 5, 100});
    desktop.advance(milliseconds(1));
    EXPECT_TRUE(says(inside.mouse(), "inside=no"));
}

TEST_F(MouseTimers, InADesignerNeitherStaysOnAndTheMouseIsNeverInside) {
    fill(2);
    host.userMode = false;
    move(cell(1, 1));
    inside.mouseActionTimer().letEnabled(true);
    inside.mouseActionTimer().Tag = u"up";
    inside.letDropTarget(1);
    desktop.advance(milliseconds(1));
    EXPECT_FALSE(inside.mouseInTimer().Enabled());
    EXPECT_FALSE(inside.mouseActionTimer().Enabled());
    EXPECT_EQ(inside.mouseActionTimer().Tag, u"");
    EXPECT_TRUE(says(inside.drag(), "target=none"));
    EXPECT_TRUE(says(inside.mouse(), "inside=no"));
}

TEST_F(MouseTimers, LeavingDuringALeftDragMakesTheReleaseFindNoColumn) {
    fill(30);
    press(cell(2, 1));
    move({-20, rowTop(3) + 5});
    desktop.advance(milliseconds(1));
    EXPECT_TRUE(says(inside.mouse(), "inside=no"));
    taken();
    desktop.release();
    EXPECT_EQ(list.ColumnIndex(), -1);
    const Lines log = taken();
    ASSERT_EQ(log.size(), 2U);
    EXPECT_EQ(log[1], "ItemUp Row=3 Column=0") << "and no ItemClick, since the column is another one";
    EXPECT_TRUE(says(inside.edit(), "column=none"));
}

TEST_F(MouseTimers, ScrollingStopsWithTheLastButton) {
    fill(30);
    press(cell(2, 1));
    move({30, 230});
    inside.letDropTarget(7);
    inside.letButton(0);
    desktop.advance(milliseconds(1));
    EXPECT_FALSE(inside.mouseActionTimer().Enabled());
    EXPECT_EQ(inside.mouseActionTimer().Tag, u"");
    EXPECT_TRUE(says(inside.drag(), "target=none"));
    EXPECT_EQ(list.TopIndex(), 0);
}

TEST_F(MouseTimers, ScrollingUpStopsAtTheTopAndAMoveStartsItAgain) {
    fill(30);
    list.letTopIndex(1);
    press(cell(3, 1));
    move({30, -5});
    desktop.advance(milliseconds(1));
    EXPECT_EQ(list.TopIndex(), 0);
    EXPECT_TRUE(inside.mouseActionTimer().Enabled());
    desktop.advance(milliseconds(1));
    EXPECT_FALSE(inside.mouseActionTimer().Enabled());
    move({31, -5});
    EXPECT_TRUE(inside.mouseActionTimer().Enabled());
}

// Wanted: at the last row it keeps ticking.
TEST_F(MouseTimers, ScrollingDownKeepsTickingAtTheLastRow) {
    fill(12);
    press(cell(2, 1));
    move({30, 230});
    desktop.advance(milliseconds(50));
    EXPECT_EQ(list.TopIndex(), 11);
    EXPECT_TRUE(inside.mouseActionTimer().Enabled());
}

TEST_F(MouseTimers, ScrollingWhileRowsAreMovedTakesTheTargetAlong) {
    fill(30);
    inside.letAllowItemMoving(true);
    press(cell(5, 1));
    move({30, 230});
    desktop.advance(milliseconds(1));
    EXPECT_EQ(list.TopIndex(), 1);
    EXPECT_TRUE(says(inside.drag(), "target=" + fromOne(inside.VisibleItems())))
        << "by the top row before the step";
    move({30, -5});
    desktop.advance(milliseconds(1));
    EXPECT_EQ(list.TopIndex(), 0);
    EXPECT_TRUE(says(inside.drag(), "target=1"));
}

class MouseOut : public PlayedList {};

// Wanted: nothing calls it.
TEST_F(MouseOut, NeverRunsByItself) {
    fill(2);
    hover(cell(1, 1));
    move({500, 500});
    desktop.advance(milliseconds(5));
    EXPECT_EQ(desktop.captured(), 0);
}

TEST_F(MouseOut, TakesTheCaptureInsideAndGivesItBackOutside) {
    struct Row {
        const char* name;
        Single x;
        Single y;
        bool pointerOver;
        bool insideBefore;
        bool insideAfter;
        CursorShape cursorAfter;
    };
    // clang-format off
    const Row rows[] = {
        {"left of it",                 -1,  50,  true,  true,  false, CursorShape::custom},
        {"above it",                   50,  -1,  true,  true,  false, CursorShape::custom},
        {"right of it",                301, 50,  true,  true,  false, CursorShape::custom},
        {"under it",                   50,  201, true,  true,  false, CursorShape::custom},
        {"on its lower right corner",  300, 200, true,  true,  true,  CursorShape::custom},
        {"inside, for the first time", 50,  50,  true,  false, true,  CursorShape::standard},
        {"inside, as before",          50,  50,  true,  true,  true,  CursorShape::custom},
        {"inside, another window up",  50,  50,  false, true,  false, CursorShape::standard},
    };
    // clang-format on
    for (const Row& row : rows) {
        desktop.move(row.pointerOver ? Point{150, 150} : Point{900, 900});
        window().letMousePointer(CursorShape::custom);
        inside.letInside(row.insideBefore);
        window().setCapture();
        inside.MouseOut(row.x, row.y);
        EXPECT_TRUE(says(inside.mouse(), "inside=" + yesNo(row.insideAfter))) << row.name;
        EXPECT_EQ(desktop.captured(), row.insideAfter ? list.hwnd() : 0) << row.name;
        EXPECT_EQ(window().MousePointer(), row.cursorAfter) << row.name;
        window().releaseCapture();
    }
}

} // namespace lumtex::testing
