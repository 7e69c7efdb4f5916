#include "desktop_fixture.h"

#include <array>

namespace lumtex::testing {

using PointerRules = DesktopFixture;
using Clicks = DesktopFixture;
using PointerOver = DesktopFixture;
using Wheel = DesktopFixture;

TEST_F(PointerRules, AMovePassesThePlaceOnTheSurfaceAndTheHeldButtons) {
    desktop.move({12, 23});
    desktop.press(leftButton);
    desktop.press(rightButton);
    events.clear();
    desktop.move({13, 25});
    EXPECT_TRUE(sameLog(events.take(), {"a.MouseMove Button=3 Shift=0 X=3 Y=5"}));
}

TEST_F(PointerRules, PressAndReleasePassTheOneButtonThatChanged) {
    a->window().setFocus();
    desktop.move(a->window(), 1, 2);
    events.clear();
    desktop.press(rightButton);
    desktop.press(middleButton);
    desktop.release(rightButton);
    EXPECT_TRUE(sameLog(events.take(),
                        {"a.MouseDown Button=2 Shift=0 X=1 Y=2",
                         "a.MouseDown Button=4 Shift=0 X=1 Y=2",
                         "a.MouseUp Button=2 Shift=0 X=1 Y=2"}));
}

TEST_F(PointerRules, AWindowAboveTakesThePress) {
    const auto b = child("b", *a, 0, 0, 50, 50);
    desktop.press(a->window(), 10, 10);
    EXPECT_TRUE(sameLog(
        events.take(),
        {"b.MouseMove Button=0 Shift=0 X=10 Y=10", "b.GotFocus", "b.MouseDown Button=1 Shift=0 X=10 Y=10"}));
}

TEST_F(PointerRules, AHiddenWindowLetsThePressThrough) {
    const auto b = child("b", *a, 0, 0, 50, 50);
    b->window().letVisible(false);
    desktop.press(a->window(), 10, 10);
    EXPECT_EQ(events.take().back(), "a.MouseDown Button=1 Shift=0 X=10 Y=10");
}

TEST_F(PointerRules, ADisabledWindowLetsThePressThrough) {
    const auto b = child("b", *a, 0, 0, 50, 50);
    b->window().letEnabled(false);
    desktop.press(a->window(), 10, 10);
    EXPECT_EQ(events.take().back(), "a.MouseDown Button=1 Shift=0 X=10 Y=10");
}

TEST_F(PointerRules, AWindowUnderADisabledParentGetsNothing) {
    const auto b = child("b", *a, 0, 0, 50, 50);
    a->window().letEnabled(false);
    EXPECT_TRUE(b->headless().Enabled());
    desktop.click(b->window(), 10, 10);
    desktop.wheel(120);
    EXPECT_TRUE(sameLog(events.take(), {}));
}

TEST_F(PointerRules, BesideAllWindowsNobodyHears) {
    desktop.move({5, 5});
    desktop.click();
    desktop.wheel(120);
    EXPECT_TRUE(sameLog(events.take(), {}));
}

TEST_F(PointerRules, APressThatMissedReachesNobodyByItsReleaseButTheWindowThere) {
    desktop.move({5, 5});
    desktop.press();
    desktop.move({15, 25});
    desktop.release();
    EXPECT_TRUE(sameLog(events.take(),
                        {"a.MouseMove Button=1 Shift=0 X=5 Y=5", "a.MouseUp Button=1 Shift=0 X=5 Y=5"}));
}

TEST_F(PointerRules, PostedInputHasHappenedAndItsEventsWait) {
    desktop.postMove({15, 26});
    desktop.postPress();
    desktop.postMove({16, 26});
    EXPECT_TRUE(sameLog(events.take(), {}));
    EXPECT_EQ(desktop.pointer(), (Point{16, 26}));
    EXPECT_EQ(a->window().pointer(), (Point{6, 6}));
    EXPECT_FALSE(desktop.idle());
    desktop.run();
    EXPECT_TRUE(sameLog(events.take(),
                        {"a.MouseMove Button=0 Shift=0 X=5 Y=6",
                         "a.GotFocus",
                         "a.MouseDown Button=1 Shift=0 X=5 Y=6",
                         "a.MouseMove Button=1 Shift=0 X=6 Y=6"}));
    EXPECT_TRUE(desktop.idle());
}

TEST_F(PointerRules, WhoGetsAnEventIsDecidedWhenItIsDelivered) {
    const auto b = child("b", *a, 0, 0, 50, 50);
    desktop.postMove({15, 25});
    b->window().letVisible(false);
    desktop.run();
    EXPECT_TRUE(sameLog(events.take(), {"a.MouseMove Button=0 Shift=0 X=5 Y=5"}));
}

TEST_F(PointerRules, HeldShiftKeysAndThoseOfTheVerbAreInEachEvent) {
    a->window().setFocus();
    desktop.keyDown(keys::control);
    events.clear();
    desktop.move({15, 25}, keys::shiftMask);
    desktop.click(leftButton, keys::altMask);
    desktop.wheel(-120, keys::shiftMask);
    EXPECT_TRUE(sameLog(events.take(),
                        {"a.MouseMove Button=0 Shift=3 X=5 Y=5",
                         "a.MouseDown Button=1 Shift=6 X=5 Y=5",
                         "a.MouseUp Button=1 Shift=6 X=5 Y=5",
                         "a.Click",
                         "a.MouseMove Button=0 Shift=6 X=5 Y=5",
                         "a.Wheel Rotation=-120 Shift=3 X=5 Y=5"}));
}

TEST_F(PointerRules, ADragPressesMovesAndReleases) {
    a->window().setFocus();
    desktop.move(a->window(), 1, 1);
    events.clear();
    desktop.dragTo(a->window(), 200, 3);
    EXPECT_TRUE(sameLog(events.take(),
                        {"a.MouseDown Button=1 Shift=0 X=1 Y=1",
                         "a.MouseMove Button=1 Shift=0 X=200 Y=3",
                         "a.MouseUp Button=1 Shift=0 X=200 Y=3"}));
}

TEST_F(Clicks, ComeAfterTheReleaseInside) {
    a->window().setFocus();
    events.clear();
    desktop.click(a->window(), 1, 2, rightButton);
    EXPECT_TRUE(sameLog(events.take(),
                        {"a.MouseMove Button=0 Shift=0 X=1 Y=2",
                         "a.MouseDown Button=2 Shift=0 X=1 Y=2",
                         "a.MouseUp Button=2 Shift=0 X=1 Y=2",
                         "a.Click",
                         "a.MouseMove Button=0 Shift=0 X=1 Y=2"}));
}

TEST_F(Clicks, DoNotComeAfterAReleaseOutside) {
    desktop.press(a->window(), 99, 79);
    desktop.move(a->window(), 100, 79);
    events.clear();
    desktop.release();
    EXPECT_TRUE(sameLog(events.take(), {"a.MouseUp Button=1 Shift=0 X=100 Y=79"}));
}

TEST_F(Clicks, ComeAlsoWhereAChildCoversThePlaceOfTheRelease) {
    const auto b = child("b", *a, 50, 0, 50, 80);
    desktop.press(a->window(), 10, 10);
    desktop.move(a->window(), 60, 10);
    events.clear();
    desktop.release();
    EXPECT_TRUE(sameLog(
        events.take(),
        {"a.MouseUp Button=1 Shift=0 X=60 Y=10", "a.Click", "b.MouseMove Button=0 Shift=0 X=10 Y=10"}));
}

TEST_F(Clicks, DoNotComeFromAPressOnAnotherWindow) {
    const auto b = child("b", *a, 50, 0, 50, 80);
    events.on("a.MouseDown", [this] { a->window().releaseCapture(); });
    desktop.press(a->window(), 10, 10);
    desktop.move(b->window(), 1, 1);
    events.clear();
    desktop.release();
    EXPECT_TRUE(sameLog(events.take(), {"b.MouseUp Button=1 Shift=0 X=1 Y=1"}));
}

TEST_F(Clicks, DoNotComeToAWindowThatWasDisabledMeanwhile) {
    events.on("a.MouseUp", [this] { a->window().letEnabled(false); });
    desktop.press(a->window(), 10, 10);
    events.clear();
    desktop.release();
    EXPECT_TRUE(sameLog(events.take(), {"a.MouseUp Button=1 Shift=0 X=10 Y=10", "a.LostFocus"}));
}

TEST_F(Clicks, OfTwoButtonsTheOnePressedLastClicks) {
    desktop.press(a->window(), 1, 1, leftButton);
    desktop.press(rightButton);
    events.clear();
    desktop.release(leftButton);
    desktop.release(rightButton);
    EXPECT_TRUE(sameLog(events.take(),
                        {"a.MouseUp Button=1 Shift=0 X=1 Y=1",
                         "a.MouseUp Button=2 Shift=0 X=1 Y=1",
                         "a.Click",
                         "a.MouseMove Button=0 Shift=0 X=1 Y=1"}));
}

TEST_F(Clicks, ADoubleClickStandsInPlaceOfTheSecondPressAndItsReleaseClicksNoMore) {
    a->window().setFocus();
    events.clear();
    desktop.doubleClick(a->window(), 1, 2);
    EXPECT_TRUE(sameLog(events.take(),
                        {"a.MouseMove Button=0 Shift=0 X=1 Y=2",
                         "a.MouseDown Button=1 Shift=0 X=1 Y=2",
                         "a.MouseUp Button=1 Shift=0 X=1 Y=2",
                         "a.Click",
                         "a.MouseMove Button=0 Shift=0 X=1 Y=2",
                         "a.DblClick",
                         "a.MouseUp Button=1 Shift=0 X=1 Y=2",
                         "a.MouseMove Button=0 Shift=0 X=1 Y=2"}));
}

TEST_F(Clicks, TwoPressesAloneAreNoDoubleClick) {
    desktop.click(a->window(), 1, 2);
    events.clear();
    desktop.click();
    EXPECT_TRUE(sameLog(events.take(),
                        {"a.MouseDown Button=1 Shift=0 X=1 Y=2",
                         "a.MouseUp Button=1 Shift=0 X=1 Y=2",
                         "a.Click",
                         "a.MouseMove Button=0 Shift=0 X=1 Y=2"}));
}

struct Spot {
    const char* name;
    Point at; ///< pixels of the surface of `a`
    bool under;
    bool strictlyInside;
};

constexpr std::array<Spot, 9> spots{{
    {"middle", {50, 40}, true, true},
    {"left column", {0, 40}, true, false},
    {"top row", {50, 0}, true, false},
    {"second column and row", {1, 1}, true, true},
    {"last column", {99, 40}, true, true},
    {"last row", {50, 79}, true, true},
    {"right of it", {100, 40}, false, false},
    {"below it", {50, 80}, false, false},
    {"left of it", {-1, 40}, false, false},
}};

TEST_F(PointerOver, OnlyTheRightAndLowerBoundsOfTheRectangleLieOutside) {
    for (const Spot& spot : spots) {
        SCOPED_TRACE(spot.name);
        desktop.move(a->window(), static_cast<Single>(spot.at.x), static_cast<Single>(spot.at.y));
        EXPECT_EQ(a->window().underPointer(), spot.under);
        EXPECT_EQ(a->window().pointerStrictlyInside(), spot.strictlyInside);
        EXPECT_EQ(a->window().pointer(), spot.at);
    }
}

TEST_F(PointerOver, AChildAboveMakesTheWindowNotTheOneUnderThePointer) {
    const auto b = child("b", *a, 10, 10, 20, 20);
    desktop.move(a->window(), 15, 15);
    EXPECT_FALSE(a->window().underPointer());
    EXPECT_FALSE(a->window().pointerStrictlyInside());
    EXPECT_TRUE(b->window().pointerStrictlyInside());
}

TEST_F(PointerOver, AnotherWindowAboveHidesIt) {
    const auto b = pad("b");
    b->show(0, 0, 60, 60);
    desktop.move({50, 50});
    EXPECT_FALSE(a->window().underPointer());
    EXPECT_TRUE(b->window().underPointer());
}

TEST_F(PointerOver, ACaptureChangesNothing) {
    const auto b = child("b", *a, 10, 10, 20, 20);
    b->window().setCapture();
    desktop.move(a->window(), 50, 50);
    EXPECT_TRUE(a->window().underPointer());
    EXPECT_FALSE(b->window().underPointer());
}

TEST_F(PointerOver, ADisabledWindowIsNotTheOneUnderThePointer) {
    const auto b = child("b", *a, 10, 10, 20, 20);
    b->window().letEnabled(false);
    desktop.move(a->window(), 15, 15);
    EXPECT_FALSE(b->window().underPointer());
    EXPECT_TRUE(a->window().underPointer());
}

TEST_F(Wheel, TurnsTheWindowUnderThePointerAndNotTheOneWithTheFocus) {
    const auto b = child("b", *a, 10, 10, 20, 20);
    a->window().setFocus();
    a->window().setCapture();
    desktop.move(a->window(), 15, 15);
    events.clear();
    desktop.wheel(-240);
    EXPECT_TRUE(sameLog(events.take(), {"b.Wheel Rotation=-240 Shift=0 X=5 Y=5"}));
}

TEST_F(Wheel, GoesOnToTheWindowAroundWhereItIsNotTaken) {
    const auto b = child("b", *a, 10, 10, 20, 20);
    b->takesWheel = false;
    desktop.move(a->window(), 15, 15);
    events.clear();
    desktop.wheel(120);
    EXPECT_TRUE(sameLog(events.take(),
                        {"b.Wheel Rotation=120 Shift=0 X=5 Y=5", "a.Wheel Rotation=120 Shift=0 X=15 Y=15"}));
}

TEST_F(Wheel, GoesOnFromAWindowThatWasDestroyedByIt) {
    auto b = child("b", *a, 10, 10, 20, 20);
    b->takesWheel = false;
    events.on("b.Wheel", [&] { b.reset(); });
    desktop.move(a->window(), 15, 15);
    events.clear();
    desktop.wheel(120);
    EXPECT_TRUE(sameLog(events.take(),
                        {"b.Wheel Rotation=120 Shift=0 X=5 Y=5", "a.Wheel Rotation=120 Shift=0 X=15 Y=15"}));
}

} // namespace lumtex::testing
