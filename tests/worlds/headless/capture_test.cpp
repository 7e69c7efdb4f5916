#include "desktop_fixture.h"

namespace lumtex::testing {

using Capture = DesktopFixture;

TEST_F(Capture, APressHoldsTheMouseUntilTheRelease) {
    const auto b = child("b", *a, 50, 0, 50, 80);
    desktop.press(a->window(), 10, 10);
    EXPECT_EQ(desktop.captured(), a->window().hWnd());
    events.clear();
    desktop.move(b->window(), 1, 1);
    desktop.move({-5, -6});
    desktop.release();
    desktop.move(b->window(), 2, 2);
    EXPECT_TRUE(sameLog(events.take(),
                        {"a.MouseMove Button=1 Shift=0 X=51 Y=1",
                         "a.MouseMove Button=1 Shift=0 X=-15 Y=-26",
                         "a.MouseUp Button=1 Shift=0 X=-15 Y=-26",
                         "b.MouseMove Button=0 Shift=0 X=2 Y=2"}));
}

TEST_F(Capture, OfAPressLastsUntilAllButtonsAreUp) {
    desktop.press(a->window(), 10, 10, leftButton);
    desktop.press(rightButton);
    desktop.release(leftButton);
    EXPECT_EQ(desktop.captured(), a->window().hWnd());
    desktop.release(rightButton);
    EXPECT_EQ(desktop.captured(), 0);
}

TEST_F(Capture, SetByAWindowBringsItAllMouseEventsButTheWheel) {
    const auto b = child("b", *a, 50, 0, 50, 80);
    b->window().setCapture();
    desktop.move(a->window(), 10, 10);
    desktop.wheel(120);
    EXPECT_TRUE(
        sameLog(events.take(),
                {"b.MouseMove Button=0 Shift=0 X=-40 Y=10", "a.Wheel Rotation=120 Shift=0 X=10 Y=10"}));
    b->window().releaseCapture();
    desktop.run();
    EXPECT_TRUE(sameLog(events.take(), {"a.MouseMove Button=0 Shift=0 X=10 Y=10"}));
    desktop.move(a->window(), 11, 10);
    EXPECT_TRUE(sameLog(events.take(), {"a.MouseMove Button=0 Shift=0 X=11 Y=10"}));
}

TEST_F(Capture, ItsWindowTakesThePressWhereverItFalls) {
    const auto b = child("b", *a, 50, 0, 50, 80);
    b->window().setCapture();
    desktop.move(a->window(), 10, 10);
    events.clear();
    desktop.click();
    EXPECT_TRUE(sameLog(events.take(),
                        {"b.GotFocus",
                         "b.MouseDown Button=1 Shift=0 X=-40 Y=10",
                         "b.MouseUp Button=1 Shift=0 X=-40 Y=10",
                         "a.MouseMove Button=0 Shift=0 X=10 Y=10"}));
}

TEST_F(Capture, EndsWithTheReleaseWhoeverTookIt) {
    a->window().setCapture();
    desktop.click(a->window(), 10, 10);
    EXPECT_EQ(desktop.captured(), 0);
}

TEST_F(Capture, AskedForInTheReleaseStays) {
    events.on("a.MouseUp", [this] { a->window().setCapture(); });
    desktop.click(a->window(), 10, 10);
    EXPECT_EQ(desktop.captured(), a->window().hWnd());
}

TEST_F(Capture, IsGivenBackOnlyByTheWindowThatHasIt) {
    const auto b = child("b", *a, 50, 0, 50, 80);
    a->window().setCapture();
    b->window().releaseCapture();
    EXPECT_EQ(desktop.captured(), a->window().hWnd());
}

TEST_F(Capture, TheLastOneToAskHasIt) {
    const auto b = child("b", *a, 50, 0, 50, 80);
    a->window().setCapture();
    b->window().setCapture();
    EXPECT_EQ(desktop.captured(), b->window().hWnd());
}

TEST_F(Capture, EndsWhenTheWindowOrWhatItLiesInIsHiddenOrDisabled) {
    const auto b = child("b", *a, 50, 0, 50, 80);
    b->window().setCapture();
    b->window().letVisible(false);
    EXPECT_EQ(desktop.captured(), 0);
    b->window().letVisible(true);
    b->window().setCapture();
    a->window().letEnabled(false);
    EXPECT_EQ(desktop.captured(), 0);
}

TEST_F(Capture, IsRefusedToAWindowThatTakesNoInput) {
    const auto b = child("b", *a, 50, 0, 50, 80);
    b->window().letEnabled(false);
    b->window().setCapture();
    EXPECT_EQ(desktop.captured(), 0);
}

TEST_F(Capture, AWindowHiddenInItsOwnPressHearsNoRelease) {
    const auto b = child("b", *a, 50, 0, 50, 80);
    events.on("b.MouseDown", [&] { b->window().letVisible(false); });
    desktop.press(b->window(), 1, 1);
    events.clear();
    desktop.release();
    EXPECT_TRUE(sameLog(events.take(), {"a.MouseUp Button=1 Shift=0 X=51 Y=1"}));
}

TEST_F(Capture, ThatEndsMakesUpAMoveForTheWindowUnderThePointerByThen) {
    const auto b = child("b", *a, 50, 0, 50, 80);
    desktop.press(a->window(), 10, 10);
    events.clear();
    // The pointer moves on while the release waits, and once more behind it.
    desktop.postRelease();
    desktop.postMove({65, 25});
    desktop.run();
    EXPECT_TRUE(sameLog(events.take(),
                        {"a.MouseUp Button=1 Shift=0 X=10 Y=10",
                         "a.Click",
                         "b.MouseMove Button=0 Shift=0 X=5 Y=5",
                         "b.MouseMove Button=0 Shift=0 X=5 Y=5"}));
}

TEST_F(Capture, ThatEndsTwiceBeforeMessagesRunMakesUpOneMove) {
    desktop.move(a->window(), 10, 10);
    events.clear();
    for (int i = 0; i < 2; ++i) {
        a->window().setCapture();
        a->window().releaseCapture();
    }
    a->window().releaseCapture();
    desktop.run();
    EXPECT_TRUE(sameLog(events.take(), {"a.MouseMove Button=0 Shift=0 X=10 Y=10"}));
}

TEST_F(Capture, OfAWindowThatIsHiddenMakesUpAMove) {
    const auto b = child("b", *a, 0, 0, 50, 80);
    desktop.move(b->window(), 10, 10);
    b->window().setCapture();
    events.clear();
    b->window().letVisible(false);
    EXPECT_TRUE(sameLog(events.take(), {}));
    desktop.run();
    EXPECT_TRUE(sameLog(events.take(), {"a.MouseMove Button=0 Shift=0 X=10 Y=10"}));
}

} // namespace lumtex::testing
