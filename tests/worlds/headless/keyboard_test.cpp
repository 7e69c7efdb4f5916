#include "desktop_fixture.h"

#include <array>

namespace lumtex::testing {

using Keys = DesktopFixture;

TEST_F(Keys, GoToTheWindowWithTheFocus) {
    const auto b = child("b", *a, 50, 0, 50, 80);
    b->window().setFocus();
    desktop.move(a->window(), 1, 1);
    events.clear();
    desktop.key(keys::down);
    EXPECT_TRUE(sameLog(events.take(), {"b.KeyDown KeyCode=40 Shift=0", "b.KeyUp KeyCode=40 Shift=0"}));
}

TEST_F(Keys, WithoutFocusNobodyHears) {
    desktop.key(keys::down);
    desktop.type(u"a");
    EXPECT_TRUE(sameLog(events.take(), {}));
}

TEST_F(Keys, ADisabledParentKeepsThemAway) {
    const auto b = child("b", *a, 50, 0, 50, 80);
    b->window().setFocus();
    desktop.postKeyDown(keys::down);
    a->window().letEnabled(false);
    events.clear();
    desktop.run();
    EXPECT_TRUE(sameLog(events.take(), {}));
}

TEST_F(Keys, TypingSendsKeyCharacterAndRelease) {
    a->window().setFocus();
    events.clear();
    desktop.type(u"aB");
    EXPECT_TRUE(sameLog(events.take(),
                        {"a.KeyDown KeyCode=65 Shift=0",
                         "a.KeyPress KeyAscii=97",
                         "a.KeyUp KeyCode=65 Shift=0",
                         "a.KeyDown KeyCode=66 Shift=1",
                         "a.KeyPress KeyAscii=66",
                         "a.KeyUp KeyCode=66 Shift=1"}));
}

TEST_F(Keys, ACharacterWithoutKeyComesByTheKeyThatStandsForIt) {
    a->window().setFocus();
    events.clear();
    desktop.type(u"\u00E4");
    EXPECT_TRUE(
        sameLog(events.take(),
                {"a.KeyDown KeyCode=231 Shift=0", "a.KeyPress KeyAscii=228", "a.KeyUp KeyCode=231 Shift=0"}));
}

TEST_F(Keys, ShiftControlAndAltAreHeldUntilTheyGoUp) {
    a->window().setFocus();
    events.clear();
    desktop.keyDown(keys::shift);
    desktop.keyDown(keys::control);
    desktop.keyDown(keys::alt);
    desktop.keyUp(keys::control);
    desktop.key(keys::up);
    desktop.keyUp(keys::shift);
    EXPECT_TRUE(sameLog(events.take(),
                        {"a.KeyDown KeyCode=16 Shift=1",
                         "a.KeyDown KeyCode=17 Shift=3",
                         "a.KeyDown KeyCode=18 Shift=7",
                         "a.KeyUp KeyCode=17 Shift=5",
                         "a.KeyDown KeyCode=38 Shift=5",
                         "a.KeyUp KeyCode=38 Shift=5",
                         "a.KeyUp KeyCode=16 Shift=4"}));
}

struct KeyCharacter {
    const char* name;
    Integer keyCode;
    Integer shift;
    Integer unit;
};

constexpr std::array<KeyCharacter, 14> keyCharacters{{
    {"letter", u'Q', 0, u'q'},
    {"capital letter", u'Q', keys::shiftMask, u'Q'},
    {"letter with Control", u'C', keys::controlMask, 3},
    {"letter with Alt", u'C', keys::altMask, 0},
    {"digit", u'7', 0, u'7'},
    {"digit with Shift", u'7', keys::shiftMask, 0},
    {"digit with Control", u'7', keys::controlMask, 0},
    {"Enter", keys::enter, 0, 13},
    {"Escape", keys::escape, 0, 27},
    {"Tab", keys::tab, 0, 9},
    {"Backspace", keys::backspace, 0, 8},
    {"space", keys::space, 0, 32},
    {"arrow", keys::left, 0, 0},
    {"Shift", keys::shift, keys::shiftMask, 0},
}};

TEST(KeyCharacters, AreThoseThatTheKeysEnter) {
    for (const KeyCharacter& entry : keyCharacters) {
        SCOPED_TRACE(entry.name);
        EXPECT_EQ(headless::characterOf(entry.keyCode, entry.shift), entry.unit);
    }
}

TEST_F(Keys, AKeyThatEntersACharacterPostsItToo) {
    a->window().setFocus();
    events.clear();
    desktop.postKeyDown(keys::enter);
    EXPECT_TRUE(sameLog(events.take(), {}));
    desktop.run();
    EXPECT_TRUE(sameLog(events.take(), {"a.KeyDown KeyCode=13 Shift=0", "a.KeyPress KeyAscii=13"}));
}

} // namespace lumtex::testing
