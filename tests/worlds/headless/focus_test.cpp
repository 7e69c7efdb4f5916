#include "desktop_fixture.h"

namespace lumtex::testing {

using FocusRules = DesktopFixture;

TEST_F(FocusRules, AChangeTellsFirstWhoLostItThenWhoGotIt) {
    const auto b = child("b", *a, 50, 0, 50, 80);
    a->window().setFocus();
    b->window().setFocus();
    b->window().setFocus();
    EXPECT_TRUE(sameLog(events.take(), {"a.GotFocus", "a.LostFocus", "b.GotFocus"}));
    EXPECT_EQ(desktop.focus(), &b->window());
    EXPECT_EQ(desktop.focused(), b->window().hWnd());
}

TEST_F(FocusRules, APressGivesItBeforeThePressIsTold) {
    desktop.press(a->window(), 1, 1);
    EXPECT_TRUE(sameLog(
        events.take(),
        {"a.MouseMove Button=0 Shift=0 X=1 Y=1", "a.GotFocus", "a.MouseDown Button=1 Shift=0 X=1 Y=1"}));
}

TEST_F(FocusRules, APressOnAWindowTakesItFromTheChildThatHasIt) {
    const auto b = child("b", *a, 50, 0, 50, 80);
    b->window().setFocus();
    events.clear();
    desktop.click(a->window(), 10, 10);
    EXPECT_TRUE(sameLog(events.take(),
                        {"a.MouseMove Button=0 Shift=0 X=10 Y=10",
                         "b.LostFocus",
                         "a.GotFocus",
                         "a.MouseDown Button=1 Shift=0 X=10 Y=10",
                         "a.MouseUp Button=1 Shift=0 X=10 Y=10",
                         "a.Click",
                         "a.MouseMove Button=0 Shift=0 X=10 Y=10"}));
    EXPECT_EQ(desktop.focused(), a->window().hWnd());
}

TEST_F(FocusRules, APressOnAChildTakesItFromTheParent) {
    const auto b = child("b", *a, 50, 0, 50, 80);
    a->window().setFocus();
    desktop.press(b->window(), 1, 1);
    EXPECT_EQ(desktop.focused(), b->window().hWnd());
}

TEST_F(FocusRules, IsRefusedToAWindowThatTakesNoInput) {
    const auto b = child("b", *a, 50, 0, 50, 80);
    a->window().setFocus();
    events.clear();
    b->window().letEnabled(false);
    b->window().setFocus();
    b->window().letEnabled(true);
    b->window().letVisible(false);
    b->window().setFocus();
    EXPECT_TRUE(sameLog(events.take(), {}));
    EXPECT_EQ(desktop.focused(), a->window().hWnd());
}

TEST_F(FocusRules, HidingAWindowPassesItToTheNearestOneAround) {
    const auto b = child("b", *a, 0, 0, 50, 80);
    const auto c = child("c", *b, 0, 0, 10, 10);
    c->window().setFocus();
    events.clear();
    b->window().letVisible(false);
    EXPECT_TRUE(sameLog(events.take(), {"c.LostFocus", "a.GotFocus"}));
}

TEST_F(FocusRules, DisablingAWindowPassesItToTheNearestOneAround) {
    const auto b = child("b", *a, 0, 0, 50, 80);
    b->window().setFocus();
    events.clear();
    b->window().letEnabled(false);
    EXPECT_TRUE(sameLog(events.take(), {"b.LostFocus", "a.GotFocus"}));
}

TEST_F(FocusRules, WithNoWindowAroundNobodyHasItAfterwards) {
    a->window().setFocus();
    events.clear();
    a->window().letEnabled(false);
    EXPECT_TRUE(sameLog(events.take(), {"a.LostFocus"}));
    EXPECT_EQ(desktop.focused(), 0);
    EXPECT_EQ(desktop.focus(), nullptr);
}

TEST_F(FocusRules, HidingAWindowWithoutItChangesNothing) {
    const auto b = child("b", *a, 0, 0, 50, 80);
    a->window().setFocus();
    events.clear();
    b->window().letVisible(false);
    EXPECT_TRUE(sameLog(events.take(), {}));
}

TEST_F(FocusRules, WhoTakesItBackInItsLossKeepsIt) {
    const auto b = child("b", *a, 0, 0, 50, 80);
    a->window().setFocus();
    events.clear();
    events.on("a.LostFocus", [this] {
        events.on("a.LostFocus", {});
        a->window().setFocus();
    });
    b->window().setFocus();
    EXPECT_TRUE(sameLog(events.take(), {"a.LostFocus", "b.LostFocus", "a.GotFocus"}));
    EXPECT_EQ(desktop.focused(), a->window().hWnd());
}

TEST_F(FocusRules, APressOnAPartGivesItToTheWindowItIsAPartOf) {
    const auto bar = child("bar", *a, 50, 0, 50, 80);
    const auto thumb = child("thumb", *bar, 0, 0, 50, 20);
    bar->window().letTakesKeys(false);
    thumb->window().letTakesKeys(false);
    desktop.press(thumb->window(), 1, 1);
    EXPECT_TRUE(sameLog(events.take(),
                        {"thumb.MouseMove Button=0 Shift=0 X=1 Y=1",
                         "a.GotFocus",
                         "thumb.MouseDown Button=1 Shift=0 X=1 Y=1"}));
    EXPECT_EQ(desktop.focused(), a->window().hWnd());
}

TEST_F(FocusRules, AProgramThatIsLeftHasItBackWhenTheUserComesBack) {
    a->window().setFocus();
    events.clear();
    desktop.switchAway();
    EXPECT_EQ(desktop.focused(), 0);
    desktop.type(u"x");
    desktop.switchBack();
    EXPECT_TRUE(sameLog(events.take(), {"a.LostFocus", "a.GotFocus"}));
    EXPECT_EQ(desktop.focused(), a->window().hWnd());
}

TEST_F(FocusRules, AWindowPressedOnTheWayBackKeepsIt) {
    const auto b = child("b", *a, 50, 0, 50, 80);
    a->window().setFocus();
    desktop.switchAway();
    desktop.press(b->window(), 1, 1);
    desktop.switchBack();
    EXPECT_EQ(desktop.focused(), b->window().hWnd());
}

} // namespace lumtex::testing
