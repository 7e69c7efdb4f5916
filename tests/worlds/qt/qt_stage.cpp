#include "qt_stage.h"

#include "list_fixture.h"
#include "recording_events.h"
#include "scenarios/report_line.h"
#include "test_fonts.h"
#include "test_host.h"
#include "user_hands.h"
#include "values/rounding.h"
#include "worlds/common/nesting_level.h"
#include "worlds/headless/timer_clock.h"
#include "worlds/qt/qt_guide_line.h"
#include "worlds/qt/qt_picture.h"
#include "worlds/qt/qt_text_box.h"
#include "worlds/qt/qt_window.h"
#include "worlds/qt/qt_world.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <deque>
#include <utility>

namespace lumtex::testing {

namespace {

/// The world of Qt with timers that tick by hand.
class StageWorld final : public qt::QtWorld {
  public:
    using qt::QtWorld::QtWorld;

    std::unique_ptr<Timer> createTimer(std::function<void()> onTimer) override {
        return std::make_unique<headless::HeadlessTimer>(clock, [this, tick = std::move(onTimer)] {
            const Delivery delivery(*this);
            tick();
        });
    }

    headless::TimerClock clock;
};

/// The runtime of Qt, with boxes that are noted and dismissed, and host code in its yields.
class StageRuntime final : public qt::QtRuntime {
  public:
    explicit StageRuntime(StageWorld& world) : qt::QtRuntime(world.mouse()), clock_(world.clock) {}

    std::function<void(StringView)> onBox;
    std::deque<std::function<void()>> yields; ///< each runs once, the first one in the next yield
    int depth = 0;                            ///< yields and boxes that are under way

    void DoEvents() override {
        const worlds::NestingLevel level(depth);
        if (!yields.empty()) {
            const std::function<void()> body = std::move(yields.front());
            yields.pop_front();
            body();
        }
        deliver();
    }
    bool hasPendingEvents() const override { return true; }
    void messageBox(StringView text, BoxStyle /*style*/, StringView /*title*/) override {
        const worlds::NestingLevel level(depth);
        onBox(text);
        deliver();
    }
    /// Lets all events and due ticks through, outside of any yield.
    void deliver() {
        do
            qt::QtRuntime::DoEvents();
        while (clock_.deliverTick());
    }

  private:
    headless::TimerClock& clock_;
};

/// The window of the program, and somebody beside the list who can have the focus.
class ProgramWindow {
  public:
    ProgramWindow() : neighbour_(&window_) {
        window_.setGeometry(0, 0, 700, 400);
        window_.setFocusPolicy(Qt::StrongFocus);
        neighbour_.setFocusPolicy(Qt::StrongFocus);
        neighbour_.setGeometry(600, 100, 50, 50);
        window_.show();
        window_.activateWindow();
        QCoreApplication::processEvents();
        window_.setFocus();
    }

    QWidget& window() { return window_; }
    QWidget& neighbour() { return neighbour_; }

  private:
    QWidget window_;
    QWidget neighbour_;
};

class QtStage final : public Stage {
  public:
    QtStage() {
        events_.depth = [this] { return runtime_.depth; };
        runtime_.onBox = [this](StringView text) { events_.log.push_back(reportLine(text)); };
        list_.UserControl_ReadProperties(MemoryPropertyBag{});
        list_.window().place(100, 100, 300, 200);
        runtime_.deliver();
        events_.log.clear();
    }

    lmListView& list() override { return list_; }
    std::vector<std::string>& log() override { return events_.log; }
    void onEvent(const std::string& event, std::function<void()> handler) override {
        events_.on(event, std::move(handler));
    }
    void onYield(std::function<void()> body) override { runtime_.yields.push_back(std::move(body)); }
    void cancelChecks(bool cancel) override { events_.cancelCheck = cancel; }

    void resize(Long width, Long height) override {
        list_.window().place(100, 100, width, height);
        runtime_.deliver();
    }
    void move(Single x, Single y, Integer shift) override {
        const QPoint corner(static_cast<int>(list_.window().Left()), static_cast<int>(list_.window().Top()));
        hands_.move(corner + QPoint(roundToLong(x), roundToLong(y)), shift);
    }
    void press(MouseButton button, Integer shift) override { hands_.press(button, shift); }
    void doublePress(MouseButton button, Integer shift) override { hands_.doublePress(button, shift); }
    void release(MouseButton button, Integer shift) override { hands_.release(button, shift); }
    void wheel(Long rotation, Integer shift) override { hands_.wheel(rotation, shift); }
    void keyDown(Integer keyCode) override { hands_.keyDown(keyCode); }
    void keyUp(Integer keyCode) override { hands_.keyUp(keyCode); }
    void type(StringView text) override { hands_.type(text); }
    void focus(bool onTheList) override {
        if (onTheList)
            list_.window().setFocus();
        else
            program_.neighbour().setFocus();
        runtime_.deliver();
    }
    void switchProgram(bool away) override {
        QApplication::setActiveWindow(away ? nullptr : &program_.window());
        runtime_.deliver();
    }
    void advance(std::chrono::milliseconds span) override {
        headless::TimerClock& clock = world_.clock;
        const auto end = clock.after(span);
        runtime_.deliver();
        for (auto due = clock.nextDue(); due && *due <= end; due = clock.nextDue()) {
            clock.moveTo(*due);
            runtime_.deliver();
        }
        clock.moveTo(end);
    }
    Rect editorPlace() override { return static_cast<qt::QtTextBox&>(inside_.anyEditor()).area(); }
    bool showsGuide() override { return static_cast<qt::QtGuideLine&>(inside_.anyGuide()).Visible(); }
    Bitmap picture() override {
        return qt::bitmapOf(static_cast<qt::QtWindow&>(list_.window()).screen()->grab().toImage());
    }

  private:
    ProgramWindow program_;
    StageWorld world_{&program_.window(), &runtime_, testFonts()};
    StageRuntime runtime_{world_};
    TestHost host_;
    RecordingEvents events_;
    lmListView list_{world_, host_, events_};
    ListViewInspector inside_{list_};
    UserHands hands_{program_.window(), [this] { runtime_.deliver(); }};
};

} // namespace

std::unique_ptr<Stage> makeQtStage() {
    return std::make_unique<QtStage>();
}

} // namespace lumtex::testing
