#include "desktop_fixture.h"
#include "error_number.h"

#include <limits>
#include <set>

namespace lumtex::testing {

using WindowPlace = DesktopFixture;
using WindowShowing = DesktopFixture;
using WindowTreeOrder = DesktopFixture;
using WindowAdoption = DesktopFixture;
using WindowNumbers = DesktopFixture;

TEST_F(WindowPlace, IsRoundedToWholePixelsHalvesToEven) {
    a->window().place(0.5F, 1.5F, 2.5F, 3.5F);
    EXPECT_EQ(a->window().Left(), 0);
    EXPECT_EQ(a->window().Top(), 2);
    EXPECT_EQ(a->window().Width(), 2);
    EXPECT_EQ(a->window().Height(), 4);
    EXPECT_EQ(a->window().surface().scaleWidth(), 2);
    EXPECT_EQ(a->window().surface().scaleHeight(), 4);
}

TEST_F(WindowPlace, ASizeBelowZeroCountsAsZero) {
    a->window().place(5, 5, -3, -0.6F);
    EXPECT_EQ(a->window().Width(), 0);
    EXPECT_EQ(a->window().Height(), 0);
    EXPECT_EQ(a->window().Left(), 5);
}

TEST_F(WindowPlace, ANewSizeTellsOfTheResizeBeforeTheCallReturns) {
    a->window().place(10, 20, 50, 40);
    EXPECT_TRUE(sameLog(events.take(), {"a.Resize Width=50 Height=40"}));
}

TEST_F(WindowPlace, AMoveAloneIsNoResize) {
    a->window().place(30, 40, 100, 80);
    EXPECT_TRUE(sameLog(events.take(), {}));
    EXPECT_EQ(a->window().Left(), 30);
}

TEST_F(WindowPlace, AResizeThatPlacesTheWindowAgainEndsWhereItWantsToBe) {
    events.on("a.Resize", [this] { a->window().place(10, 20, 17, 17); });
    a->window().place(10, 20, 60, 60);
    EXPECT_TRUE(sameLog(events.take(), {"a.Resize Width=60 Height=60", "a.Resize Width=17 Height=17"}));
    EXPECT_EQ(a->window().Width(), 17);
}

TEST_F(WindowPlace, AHiddenWindowIsResizedToo) {
    const auto b = pad("b", a.get());
    b->window().place(0, 0, 5, 6);
    EXPECT_TRUE(sameLog(events.take(), {"b.Resize Width=5 Height=6"}));
}

TEST_F(WindowPlace, ANewSizeKeepsWhatWasDrawn) {
    a->window().surface().pset(3, 4, 0x0000FF);
    a->window().place(10, 20, 50, 300);
    const Bitmap image = a->window().surface().image();
    EXPECT_EQ(image.at(3, 4), 0xFFFF0000U);
    EXPECT_EQ(image.height, 300);
}

TEST_F(WindowPlace, NumbersThatAreNoPlaceFailAndLeaveTheWindowAsItWas) {
    const Single nan = std::numeric_limits<Single>::quiet_NaN();
    EXPECT_EQ(errorNumberOf([&] { a->window().place(nan, 0, 1, 1); }), ErrorNumber::overflow);
    EXPECT_EQ(errorNumberOf([&] { a->window().place(0, 0, 1, 3e9F); }), ErrorNumber::overflow);
    EXPECT_EQ(errorNumberOf([&] { a->window().place(0, 0, 1e6F, 1e6F); }), ErrorNumber::outOfMemory);
    EXPECT_EQ(a->window().Left(), 10);
    EXPECT_EQ(a->window().Width(), 100);
    EXPECT_TRUE(sameLog(events.take(), {}));
}

TEST_F(WindowPlace, ThePointerFindsAWindowAtTheEndOfTheNumbers) {
    const auto b = pad("b");
    b->show(2147483000.0F, 2147483000.0F, 1000, 1000);
    const auto c = pad("c", b.get());
    c->show(2147483000.0F, 5, 1000, 1000);
    events.clear();
    desktop.move({2147483600, 2147483646});
    // The corner of `b` is the nearest number that a Single holds, 2147483008.
    EXPECT_TRUE(sameLog(events.take(), {"b.MouseMove Button=0 Shift=0 X=592 Y=638"}));
}

TEST_F(WindowShowing, AChildStartsHiddenAndWithoutSize) {
    const auto b = pad("b", a.get());
    EXPECT_FALSE(b->window().Visible());
    EXPECT_EQ(b->window().Width(), 0);
    EXPECT_EQ(b->window().Height(), 0);
    EXPECT_TRUE(b->headless().Enabled());
}

TEST_F(WindowShowing, AWindowWithoutParentIsShownFromTheStart) {
    const auto b = pad("b");
    EXPECT_TRUE(b->window().Visible());
    EXPECT_TRUE(sameLog(events.take(), {}));
}

TEST_F(WindowShowing, IsToldWheneverAHiddenWindowShows) {
    const auto b = pad("b", a.get());
    b->window().letVisible(false);
    EXPECT_TRUE(sameLog(events.take(), {}));
    b->window().letVisible(true);
    b->window().letVisible(true);
    EXPECT_TRUE(sameLog(events.take(), {"b.Show"}));
    b->window().letVisible(false);
    b->window().letVisible(true);
    EXPECT_TRUE(sameLog(events.take(), {"b.Show"}));
}

TEST_F(WindowNumbers, AreUniqueNeverZeroAndNeverGivenTwice) {
    std::set<WindowHandle> seen;
    for (int i = 0; i < 100; ++i) {
        const auto made = pad("b");
        const auto inner = pad("c", made.get());
        EXPECT_NE(made->window().hWnd(), 0);
        EXPECT_TRUE(seen.insert(made->window().hWnd()).second);
        EXPECT_TRUE(seen.insert(inner->window().hWnd()).second);
    }
}

TEST_F(WindowTreeOrder, LaterChildrenLieAboveEarlierOnes) {
    const auto b = child("b", *a, 0, 0, 50, 50);
    const auto c = child("c", *a, 25, 25, 50, 50);
    desktop.move(a->window(), 30, 30);
    EXPECT_TRUE(sameLog(events.take(), {"c.MouseMove Button=0 Shift=0 X=5 Y=5"}));
    desktop.move(a->window(), 24, 24);
    EXPECT_TRUE(sameLog(events.take(), {"b.MouseMove Button=0 Shift=0 X=24 Y=24"}));
}

TEST_F(WindowTreeOrder, AChildIsReachedOnlyWhereItsParentIs) {
    const auto b = child("b", *a, 90, 0, 50, 50);
    desktop.move(a->window(), 99, 10);
    desktop.move(a->window(), 100, 10);
    EXPECT_TRUE(sameLog(events.take(), {"b.MouseMove Button=0 Shift=0 X=9 Y=10"}));
}

TEST_F(WindowTreeOrder, WindowsWithoutParentLieInOrderToo) {
    const auto b = pad("b");
    b->show(50, 50, 100, 100);
    events.clear();
    desktop.move({60, 60});
    desktop.move({40, 40});
    EXPECT_TRUE(sameLog(
        events.take(), {"b.MouseMove Button=0 Shift=0 X=10 Y=10", "a.MouseMove Button=0 Shift=0 X=30 Y=20"}));
}

TEST_F(WindowAdoption, MakesAForeignWindowAChildOnTopOfTheOthers) {
    const auto b = child("b", *a, 0, 0, 50, 50);
    const auto stranger = pad("s");
    stranger->show(0, 0, 20, 20);
    events.clear();
    EXPECT_TRUE(a->window().adopt(stranger->window().hWnd()));
    desktop.move(a->window(), 5, 6);
    EXPECT_TRUE(sameLog(events.take(), {"s.MouseMove Button=0 Shift=0 X=5 Y=6"}));
}

TEST_F(WindowAdoption, AdoptingAgainBringsTheChildToTheTop) {
    const auto b = child("b", *a, 0, 0, 50, 50);
    const auto c = child("c", *a, 0, 0, 50, 50);
    EXPECT_TRUE(a->window().adopt(b->window().hWnd()));
    desktop.move(a->window(), 1, 1);
    EXPECT_TRUE(sameLog(events.take(), {"b.MouseMove Button=0 Shift=0 X=1 Y=1"}));
}

TEST_F(WindowAdoption, RefusesNoneAndWhatDoesNotExist) {
    WindowHandle gone = 0;
    {
        const auto b = pad("b");
        gone = b->window().hWnd();
    }
    EXPECT_FALSE(a->window().adopt(0));
    EXPECT_FALSE(a->window().adopt(gone));
    EXPECT_FALSE(a->window().adopt(-1));
}

TEST_F(WindowAdoption, RefusesTheWindowItselfAndWhatItLiesIn) {
    const auto b = child("b", *a, 0, 0, 50, 50);
    EXPECT_FALSE(a->window().adopt(a->window().hWnd()));
    EXPECT_FALSE(b->window().adopt(a->window().hWnd()));
    desktop.move(a->window(), 60, 60);
    EXPECT_TRUE(sameLog(events.take(), {"a.MouseMove Button=0 Shift=0 X=60 Y=60"}));
}

TEST_F(WindowAdoption, IntoAHiddenWindowEndsFocusAndCapture) {
    const auto hidden = pad("h", a.get());
    const auto stranger = pad("s");
    stranger->show(200, 0, 20, 20);
    stranger->window().setFocus();
    stranger->window().setCapture();
    events.clear();
    EXPECT_TRUE(hidden->window().adopt(stranger->window().hWnd()));
    EXPECT_TRUE(sameLog(events.take(), {"s.LostFocus", "a.GotFocus"}));
    EXPECT_EQ(desktop.captured(), 0);
    EXPECT_EQ(desktop.focused(), a->window().hWnd());
}

TEST_F(WindowAdoption, AnAdoptedWindowThatOutlivesItsParentStaysBehindHidden) {
    const auto stranger = pad("s");
    stranger->show(0, 0, 20, 20);
    ASSERT_TRUE(a->window().adopt(stranger->window().hWnd()));
    events.clear();
    a.reset();
    EXPECT_FALSE(stranger->window().Visible());
    desktop.move({15, 25});
    EXPECT_TRUE(sameLog(events.take(), {}));
    stranger->window().letVisible(true);
    desktop.move({15, 15});
    EXPECT_TRUE(sameLog(events.take(), {"s.Show", "s.MouseMove Button=0 Shift=0 X=15 Y=15"}));
}

TEST_F(WindowAdoption, AWindowOfAnotherDesktopIsNoParent) {
    headless::Desktop other(testFonts());
    const auto elsewhere = other.createWindow(nullptr, *a);
    const auto further = other.createWindow(nullptr, *a);
    EXPECT_EQ(errorNumberOf([&] { desktop.createWindow(further.get(), *a); }),
              ErrorNumber::invalidProcedureCall);
}

} // namespace lumtex::testing
