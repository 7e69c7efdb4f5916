/// Windows that go away at the worst of times.
#include "desktop_fixture.h"
#include "worlds/headless/headless_guide_line.h"

#include <array>

namespace lumtex::testing {

/// A child `b` in the left half of `a`.
class DesktopDestroying : public DesktopFixture {
  protected:
    std::unique_ptr<Pad> b = child("b", *a, 0, 0, 50, 80);
};

TEST_F(DesktopDestroying, AWindowInsideItsOwnPressIsSafe) {
    events.on("b.MouseDown", [this] { b.reset(); });
    desktop.click(b->window(), 5, 5);
    EXPECT_TRUE(sameLog(events.take(),
                        {"b.MouseMove Button=0 Shift=0 X=5 Y=5",
                         "b.GotFocus",
                         "b.MouseDown Button=1 Shift=0 X=5 Y=5",
                         "a.MouseMove Button=1 Shift=0 X=5 Y=5",
                         "a.MouseUp Button=1 Shift=0 X=5 Y=5"}));
    EXPECT_EQ(desktop.captured(), 0);
    EXPECT_EQ(desktop.focused(), 0);
}

TEST_F(DesktopDestroying, AWindowInsideAnyOfItsEventsIsSafe) {
    const std::array<const char*, 9> names{"b.MouseMove",
                                           "b.GotFocus",
                                           "b.MouseDown",
                                           "b.MouseUp",
                                           "b.Click",
                                           "b.DblClick",
                                           "b.Wheel",
                                           "b.KeyDown",
                                           "b.KeyPress"};
    for (const char* name : names) {
        SCOPED_TRACE(name);
        b = child("b", *a, 0, 0, 50, 80);
        bool reached = false;
        events.on(name, [&] {
            reached = true;
            b.reset();
        });
        desktop.move({15, 25});
        desktop.wheel(120);
        desktop.doubleClick();
        desktop.type(u"x");
        events.on(name, {});
        EXPECT_TRUE(reached);
        EXPECT_EQ(b, nullptr);
    }
}

TEST_F(DesktopDestroying, AWindowInsideItsResizeOrShowIsSafe) {
    events.on("b.Resize", [this] { b.reset(); });
    b->window().place(0, 0, 5, 5);
    EXPECT_EQ(b, nullptr);
    b = pad("b", a.get());
    events.on("b.Show", [this] { b.reset(); });
    b->window().letVisible(true);
    EXPECT_EQ(b, nullptr);
}

TEST_F(DesktopDestroying, AWindowWithQueuedEventsLeavesThemToWhatLiesBelow) {
    desktop.postMove({15, 25});
    desktop.postPress();
    b.reset();
    desktop.run();
    EXPECT_TRUE(sameLog(
        events.take(),
        {"a.MouseMove Button=0 Shift=0 X=5 Y=5", "a.GotFocus", "a.MouseDown Button=1 Shift=0 X=5 Y=5"}));
}

TEST_F(DesktopDestroying, AWindowWithAQueuedPaintIsSafe) {
    b->window().present();
    b.reset();
    desktop.run();
    EXPECT_TRUE(desktop.idle());
}

TEST_F(DesktopDestroying, TheCapturingWindowFreesTheMouse) {
    b->window().setCapture();
    b.reset();
    EXPECT_EQ(desktop.captured(), 0);
    desktop.run();
    events.clear();
    desktop.move(a->window(), 60, 5);
    EXPECT_TRUE(sameLog(events.take(), {"a.MouseMove Button=0 Shift=0 X=60 Y=5"}));
}

TEST_F(DesktopDestroying, TheWindowWithTheFocusTellsNobody) {
    b->window().setFocus();
    events.clear();
    b.reset();
    EXPECT_EQ(desktop.focused(), 0);
    desktop.type(u"x");
    EXPECT_TRUE(sameLog(events.take(), {}));
}

TEST_F(DesktopDestroying, AParentEndsFocusAndCaptureOfTheChildThatOutlivesIt) {
    const auto stranger = pad("s");
    stranger->show(0, 0, 20, 20);
    ASSERT_TRUE(b->window().adopt(stranger->window().hWnd()));
    stranger->window().setFocus();
    stranger->window().setCapture();
    b.reset();
    EXPECT_EQ(desktop.focused(), 0);
    EXPECT_EQ(desktop.captured(), 0);
}

TEST_F(DesktopDestroying, TheWindowUnderThePointerUncoversTheOneBelow) {
    desktop.move({15, 25});
    EXPECT_FALSE(a->window().underPointer());
    b.reset();
    EXPECT_TRUE(a->window().underPointer());
}

TEST_F(DesktopDestroying, TheNextWindowInALossOfFocusIsSafe) {
    a->window().setFocus();
    events.clear();
    events.on("a.LostFocus", [this] { b.reset(); });
    desktop.press(b->window(), 5, 5);
    EXPECT_TRUE(sameLog(
        events.take(),
        {"b.MouseMove Button=0 Shift=0 X=5 Y=5", "a.LostFocus", "a.MouseMove Button=1 Shift=0 X=5 Y=5"}));
    EXPECT_EQ(desktop.focused(), 0);
}

TEST_F(DesktopDestroying, AWindowInAYieldOfItsOwnPressIsSafe) {
    events.on("b.MouseDown", [this] {
        desktop.onYield([this] { b.reset(); });
        desktop.runtime().DoEvents();
    });
    desktop.click(b->window(), 5, 5);
    EXPECT_EQ(b, nullptr);
    EXPECT_EQ(events.take().back(), "a.MouseUp Button=1 Shift=0 X=5 Y=5");
}

/// Takes its own box away when asked for a character, and at the loss of the focus.
class VanishingBox final : private TextBoxClient {
  public:
    VanishingBox(headless::Desktop& desktop, Window& parent) : box(desktop.createTextBox(parent, *this)) {
        box->letWidth(50);
        box->letHeight(20);
        box->letVisible(true);
        box->setFocus();
    }

    std::unique_ptr<TextBox> box;
    bool goesOnLoss = false;

  private:
    void textBoxKeyPress(Integer& /*KeyAscii*/) override { box.reset(); }
    void textBoxLostFocus() override {
        if (goesOnLoss)
            box.reset();
    }
};

TEST_F(DesktopDestroying, ATextBoxInsideItsOwnKeyIsSafe) {
    VanishingBox owner(desktop, a->window());
    desktop.type(u"x");
    EXPECT_EQ(owner.box, nullptr);
    EXPECT_EQ(desktop.focused(), 0);
}

TEST_F(DesktopDestroying, ATextBoxInsideItsLossOfFocusIsSafe) {
    VanishingBox owner(desktop, a->window());
    owner.goesOnLoss = true;
    owner.box->letVisible(false);
    EXPECT_EQ(owner.box, nullptr);
    EXPECT_EQ(desktop.focused(), a->window().hWnd());
}

TEST_F(DesktopDestroying, AWindowBeforeItsGuideLineIsSafe) {
    const auto line = desktop.createGuideLine(b->window());
    line->letVisible(true);
    b.reset();
    EXPECT_TRUE(static_cast<headless::HeadlessGuideLine&>(*line).Visible());
    EXPECT_EQ(desktop.screenshot(a->window()).at(0, 0), 0xFFFFFFFFU);
}

} // namespace lumtex::testing
