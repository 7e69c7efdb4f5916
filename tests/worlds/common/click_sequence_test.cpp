#include "log_comparison.h"
#include "worlds/common/click_sequence.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

using Log = std::vector<std::string>;

/// A window that notes what is asked of it. Any step may be the one in which it goes, or takes input no more.
class NotedWindow final : public worlds::ClickSequence::Target {
  public:
    NotedWindow(Log& log, WindowHandle handle) : log_(log), handle_(handle) {}

    bool boxHasKeys = false;
    bool underPointer = true;
    std::string goneIn;     ///< the step in which the window goes
    std::string disabledIn; ///< the step after which it takes no input

    WindowHandle handle() const override { return handle_; }
    void capture() override { note("capture"); }
    bool ownBoxHasKeys() const override { return boxHasKeys; }
    void takeKeys() override { note("keys"); }
    bool isThere() const override { return there_; }
    bool takesInput() const override { return there_ && enabled_; }
    bool covers(Point /*at*/) const override { return there_ && underPointer; }
    void mouseDown(const worlds::ClickSequence::Event& event) override {
        note("down " + std::to_string(event.button));
    }
    void doubleClick(const worlds::ClickSequence::Event& /*event*/) override { note("double"); }
    void mouseUp(const worlds::ClickSequence::Event& event) override {
        note("up " + std::to_string(event.button));
    }
    void click() override { note("click"); }

    void note(const std::string& step) {
        log_.push_back(std::to_string(handle_) + " " + step);
        there_ = there_ && step != goneIn;
        enabled_ = enabled_ && step != disabledIn;
    }

  private:
    Log& log_;
    WindowHandle handle_;
    bool there_ = true;
    bool enabled_ = true;
};

class Pressing : public ::testing::Test {
  protected:
    void release(NotedWindow* window, Integer button, Integer stillDown = noButton) {
        press.release(window, {{}, button, stillDown, 0}, [&] {
            log.emplace_back("end capture");
            if (window != nullptr)
                window->note("capture ended");
        });
    }

    worlds::ClickSequence press;
    Log log;
    NotedWindow a{log, 1};
    NotedWindow b{log, 2};
};

struct Row {
    const char* name;
    std::function<void(NotedWindow&)> prepare;
    Log steps;
};

TEST_F(Pressing, AClickIsAPressAndItsRelease) {
    const Row rows[] = {
        {"on one window",
         [](NotedWindow&) {},
         {"1 capture", "1 keys", "1 down 1", "end capture", "1 capture ended", "1 up 1", "1 click"}},
        {"its own box keeps the keyboard",
         [](NotedWindow& window) { window.boxHasKeys = true; },
         {"1 capture", "1 down 1", "end capture", "1 capture ended", "1 up 1", "1 click"}},
        {"released beside it",
         [](NotedWindow& window) { window.underPointer = false; },
         {"1 capture", "1 keys", "1 down 1", "end capture", "1 capture ended", "1 up 1"}},
        {"disabled as it got the keyboard",
         [](NotedWindow& window) { window.disabledIn = "keys"; },
         {"1 capture", "1 keys", "end capture", "1 capture ended", "1 up 1"}},
        {"gone as it got the keyboard",
         [](NotedWindow& window) { window.goneIn = "keys"; },
         {"1 capture", "1 keys", "end capture", "1 capture ended"}},
        {"gone as it lost the capture",
         [](NotedWindow& window) { window.goneIn = "capture ended"; },
         {"1 capture", "1 keys", "1 down 1", "end capture", "1 capture ended"}},
        {"disabled in the release",
         [](NotedWindow& window) { window.disabledIn = "up 1"; },
         {"1 capture", "1 keys", "1 down 1", "end capture", "1 capture ended", "1 up 1"}},
        {"gone in the release",
         [](NotedWindow& window) { window.goneIn = "up 1"; },
         {"1 capture", "1 keys", "1 down 1", "end capture", "1 capture ended", "1 up 1"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        NotedWindow window(log, 1);
        row.prepare(window);
        press.press(&window, {{}, leftButton, leftButton, 0});
        release(&window, leftButton);
        EXPECT_TRUE(sameLog(std::exchange(log, {}), row.steps));
        EXPECT_EQ(press.window(), 0);
    }
}

TEST_F(Pressing, AnotherWindowsReleaseIsNoClick) {
    press.press(&a, {{}, leftButton, leftButton, 0});
    log.clear();
    release(&b, leftButton);
    EXPECT_TRUE(sameLog(log, {"end capture", "2 capture ended", "2 up 1"}));
}

TEST_F(Pressing, AnotherButtonsReleaseLeavesThePress) {
    press.press(&a, {{}, leftButton, leftButton, 0});
    log.clear();
    release(&a, rightButton, leftButton);
    EXPECT_TRUE(sameLog(std::exchange(log, {}), {"1 up 2"}));
    EXPECT_EQ(press.window(), 1);
    release(&a, leftButton);
    EXPECT_EQ(log.back(), "1 click");
}

TEST_F(Pressing, TheSecondPressOfADoubleClickMakesNoClick) {
    press.pressAgain(&a, {{}, leftButton, leftButton, 0});
    release(&a, leftButton);
    EXPECT_TRUE(
        sameLog(log, {"1 capture", "1 keys", "1 double", "end capture", "1 capture ended", "1 up 1"}));
}

TEST_F(Pressing, APressThatWasForgottenMakesNoClick) {
    press.press(&a, {{}, leftButton, leftButton, 0});
    EXPECT_EQ(press.window(), 1);
    press.forget();
    release(&a, leftButton);
    EXPECT_EQ(log.back(), "1 up 1");
}

TEST_F(Pressing, WhereNoWindowIsOnlyTheCaptureEnds) {
    press.press(&a, {{}, leftButton, leftButton, 0});
    log.clear();
    press.press(nullptr, {{}, rightButton, leftButton, 0});
    EXPECT_EQ(press.window(), 1);
    press.pressAgain(nullptr, {{}, leftButton, leftButton, 0});
    EXPECT_EQ(press.window(), 0);
    release(nullptr, leftButton);
    EXPECT_TRUE(sameLog(log, {"end capture"}));
}

} // namespace
} // namespace lumtex::testing
