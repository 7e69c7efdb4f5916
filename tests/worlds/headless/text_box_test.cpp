#include "desktop_fixture.h"
#include "error_number.h"
#include "values/text.h"
#include "worlds/headless/headless_text_box.h"

#include <limits>

namespace lumtex::testing {

/// A text box at (10, 5) of window `a`, 60 x 16 pixels, shown.
class TextBoxRules : public DesktopFixture, private TextBoxClient {
  protected:
    TextBoxRules() {
        box->letLeft(10);
        box->letTop(5);
        box->letWidth(60);
        box->letHeight(16);
        box->letVisible(true);
    }

    static std::unique_ptr<headless::HeadlessTextBox> headless(std::unique_ptr<TextBox> made) {
        return std::unique_ptr<headless::HeadlessTextBox>(
            static_cast<headless::HeadlessTextBox*>(made.release()));
    }
    /// "text|start,length"
    std::string state() const {
        return toUtf8(box->Text()) + "|" + std::to_string(box->SelStart()) + "," +
               std::to_string(box->SelLength());
    }

    std::unique_ptr<headless::HeadlessTextBox> box = headless(desktop.createTextBox(a->window(), *this));
    Integer swallowed = -1;

  private:
    void textBoxKeyPress(Integer& KeyAscii) override {
        events.record("box.KeyPress", {{"KeyAscii", KeyAscii}});
        if (KeyAscii == swallowed)
            KeyAscii = 0;
    }
    void textBoxLostFocus() override { events.record("box.LostFocus"); }
};

TEST_F(TextBoxRules, StartsHiddenEmptyAndWithoutSize) {
    struct Deaf final : lumtex::TextBoxClient {
        void textBoxKeyPress(Integer& /*KeyAscii*/) override {}
        void textBoxLostFocus() override {}
    } deaf;
    const auto fresh = headless(desktop.createTextBox(a->window(), deaf));
    EXPECT_FALSE(fresh->Visible());
    EXPECT_EQ(fresh->Text(), u"");
    EXPECT_EQ(fresh->Width(), 0);
    EXPECT_EQ(fresh->Height(), 0);
    EXPECT_NE(fresh->hWnd(), 0);
    EXPECT_NE(fresh->hWnd(), a->window().hWnd());
}

TEST_F(TextBoxRules, PlacesAreRoundedToWholePixelsHalvesToEven) {
    box->letLeft(2.5F);
    box->letTop(3.5F);
    box->letWidth(7.5F);
    box->letHeight(-4);
    EXPECT_EQ(box->Left(), 2);
    EXPECT_EQ(box->Top(), 4);
    EXPECT_EQ(box->Width(), 8);
    EXPECT_EQ(box->Height(), 0);
    EXPECT_EQ(errorNumberOf([&] { box->letLeft(std::numeric_limits<Single>::infinity()); }),
              ErrorNumber::overflow);
    EXPECT_EQ(box->Left(), 2);
}

TEST_F(TextBoxRules, TypingAsksTheOwnerAndEntersTheRest) {
    box->setFocus();
    swallowed = u'b';
    desktop.type(u"abc");
    EXPECT_TRUE(sameLog(
        events.take(), {"box.KeyPress KeyAscii=97", "box.KeyPress KeyAscii=98", "box.KeyPress KeyAscii=99"}));
    EXPECT_EQ(state(), "ac|2,0");
}

TEST_F(TextBoxRules, EnterAndEscapeReachTheOwnerAndNotTheText) {
    box->setFocus();
    desktop.key(keys::enter);
    desktop.key(keys::escape);
    EXPECT_TRUE(sameLog(events.take(), {"box.KeyPress KeyAscii=13", "box.KeyPress KeyAscii=27"}));
    EXPECT_EQ(state(), "|0,0");
}

TEST_F(TextBoxRules, ATextEndsAtItsFirstZero) {
    box->letText(String(u"ab\0c", 4));
    EXPECT_EQ(box->Text(), u"ab");
    box->letText(String(1, u'\0'));
    EXPECT_EQ(box->Text(), u"");
}

TEST_F(TextBoxRules, TypingReplacesTheSelection) {
    box->letText(u"hello");
    box->letSelStart(1);
    box->letSelLength(3);
    box->setFocus();
    desktop.type(u"XY");
    EXPECT_EQ(state(), "hXYo|3,0");
}

TEST_F(TextBoxRules, BackspaceAndDeleteTakeTheSelectionOrOneUnit) {
    box->letText(u"abcdef");
    box->setFocus();
    box->letSelStart(2);
    box->letSelLength(2);
    desktop.key(keys::backspace);
    EXPECT_EQ(state(), "abef|2,0");
    desktop.key(keys::backspace);
    EXPECT_EQ(state(), "aef|1,0");
    desktop.key(keys::del);
    EXPECT_EQ(state(), "af|1,0");
    box->letSelStart(0);
    desktop.key(keys::backspace);
    EXPECT_EQ(state(), "af|0,0");
    box->letSelStart(2);
    desktop.key(keys::del);
    EXPECT_EQ(state(), "af|2,0");
}

TEST_F(TextBoxRules, ArrowsHomeAndEndMoveTheCaretAndShiftExtends) {
    box->letText(u"abcd");
    box->setFocus();
    desktop.key(keys::end);
    EXPECT_EQ(state(), "abcd|4,0");
    desktop.key(keys::left, keys::shiftMask);
    desktop.key(keys::left, keys::shiftMask);
    EXPECT_EQ(state(), "abcd|2,2");
    desktop.key(keys::left);
    EXPECT_EQ(state(), "abcd|2,0");
    desktop.key(keys::right, keys::shiftMask);
    desktop.key(keys::right);
    EXPECT_EQ(state(), "abcd|3,0");
    desktop.key(keys::home, keys::shiftMask);
    EXPECT_EQ(state(), "abcd|0,3");
    desktop.key(keys::home);
    desktop.key(keys::left);
    EXPECT_EQ(state(), "abcd|0,0");
}

TEST_F(TextBoxRules, SelectionsKeepWithinTheText) {
    box->letText(u"abc");
    box->letSelStart(-5);
    box->letSelLength(100);
    EXPECT_EQ(state(), "abc|0,3");
    box->letSelStart(100);
    EXPECT_EQ(state(), "abc|3,0");
    box->letSelLength(-1);
    EXPECT_EQ(state(), "abc|3,0");
    box->letSelStart(1);
    box->letText(u"new");
    EXPECT_EQ(state(), "new|0,0");
}

TEST_F(TextBoxRules, LosingTheFocusIsTold) {
    box->setFocus();
    EXPECT_EQ(desktop.focused(), box->hWnd());
    EXPECT_EQ(desktop.focus(), nullptr);
    a->window().setFocus();
    EXPECT_TRUE(sameLog(events.take(), {"box.LostFocus", "a.GotFocus"}));
}

TEST_F(TextBoxRules, HidingItPassesTheFocusToTheWindowAround) {
    box->setFocus();
    box->letVisible(false);
    EXPECT_TRUE(sameLog(events.take(), {"box.LostFocus", "a.GotFocus"}));
}

TEST_F(TextBoxRules, APressOnTheWindowAroundLeavesItTheFocus) {
    box->setFocus();
    desktop.click(a->window(), 90, 70);
    EXPECT_EQ(desktop.focused(), box->hWnd());
}

TEST_F(TextBoxRules, APressOnAnotherWindowTakesTheFocusFirst) {
    const auto b = child("b", *a, 80, 0, 20, 20);
    box->setFocus();
    desktop.press(b->window(), 1, 1);
    EXPECT_TRUE(sameLog(events.take(),
                        {"b.MouseMove Button=0 Shift=0 X=1 Y=1",
                         "box.LostFocus",
                         "b.GotFocus",
                         "b.MouseDown Button=1 Shift=0 X=1 Y=1"}));
}

TEST_F(TextBoxRules, CoversTheWindowForTheMouse) {
    desktop.move(desktop.onDesktop(*box, 30, 8));
    desktop.click();
    EXPECT_FALSE(a->window().underPointer());
    EXPECT_EQ(desktop.focused(), box->hWnd());
    EXPECT_TRUE(sameLog(events.take(), {}));
}

TEST_F(TextBoxRules, PassesTheWheelToTheWindowAround) {
    desktop.move(desktop.onDesktop(*box, 30, 8));
    desktop.wheel(120);
    EXPECT_TRUE(sameLog(events.take(), {"a.Wheel Rotation=120 Shift=0 X=40 Y=13"}));
}

TEST_F(TextBoxRules, APressSetsTheCaretAndADragSelects) {
    box->setFont({.Name = u"Verdana", .Size = 9});
    box->letText(u"mm");
    const auto measure = desktop.createSurface(0, 0);
    measure->setFont({.Name = u"Verdana", .Size = 9});
    const Single unit = measure->textWidth(u"m");
    desktop.move(desktop.onDesktop(*box, 1 + unit, 8));
    desktop.press();
    EXPECT_EQ(state(), "mm|1,0");
    desktop.move(desktop.onDesktop(*box, 59, 8));
    EXPECT_EQ(state(), "mm|1,1");
    desktop.release();
    desktop.move(desktop.onDesktop(*box, 0, 8));
    EXPECT_EQ(state(), "mm|1,1");
    desktop.doubleClick();
    EXPECT_EQ(state(), "mm|0,2");
}

} // namespace lumtex::testing
