#include "widget_stage.h"

#include "list_fixture.h"
#include "recording_events.h"
#include "scenarios/report_line.h"
#include "signal_relay.h"
#include "test_fonts.h"
#include "values/rounding.h"
#include "worlds/common/nesting_level.h"
#include "worlds/headless/timer_clock.h"
#include "worlds/qt/qt_guide_line.h"
#include "worlds/qt/qt_picture.h"
#include "worlds/qt/qt_text_box.h"
#include "worlds/qt/qt_window.h"
#include "worlds/qt/qt_world.h"
#include "worlds/qt/user_hands.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QFont>
#include <deque>
#include <utility>

namespace lumtex::testing {

namespace {

/// The runtime of Qt, with boxes that are noted and dismissed, and host code in its yields.
class StageRuntime final : public qt::QtRuntime {
  public:
    StageRuntime(worlds::Pointer& pointer, headless::TimerClock& clock)
        : qt::QtRuntime(pointer), clock_(clock) {}

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

    Runtime& runtime() override { return ownRuntime; }

    headless::TimerClock clock;
    StageRuntime ownRuntime{mouse(), clock};
};

/// The window of the program, and somebody beside the list who can have the focus.
class ProgramWindow {
  public:
    ProgramWindow() : neighbour_(&window_) {
        window_.setGeometry(0, 0, 700, 400);
        // What a list has in a container without a font.
        QFont font(QStringLiteral("Verdana"));
        font.setPointSizeF(9.75);
        window_.setFont(font);
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

class WidgetStage final : public Stage {
  public:
    WidgetStage() {
        events_.depth = [this] { return runtime().depth; };
        runtime().onBox = [this](StringView text) { events_.log.push_back(reportLine(text)); };
        widget_.setGeometry(100, 100, 300, 200);
        widget_.show();
        runtime().deliver();
        events_.log.clear();
    }

    lmListView& list() override { return widget_.list(); }
    std::vector<std::string>& log() override { return events_.log; }
    void onEvent(const std::string& event, std::function<void()> handler) override {
        events_.on(event, std::move(handler));
    }
    void onYield(std::function<void()> body) override { runtime().yields.push_back(std::move(body)); }
    void cancelChecks(bool cancel) override { events_.cancelCheck = cancel; }

    void resize(Long width, Long height) override {
        widget_.resize(width, height);
        runtime().deliver();
    }
    void move(Single x, Single y, Integer shift) override {
        hands_.move(widget_.pos() + QPoint(roundToLong(x), roundToLong(y)), shift);
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
            widget_.setFocus();
        else
            program_.neighbour().setFocus();
        runtime().deliver();
    }
    void switchProgram(bool away) override {
        QApplication::setActiveWindow(away ? nullptr : &program_.window());
        runtime().deliver();
    }
    void advance(std::chrono::milliseconds span) override {
        headless::TimerClock& clock = world_->clock;
        const auto end = clock.after(span);
        runtime().deliver();
        for (auto due = clock.nextDue(); due && *due <= end; due = clock.nextDue()) {
            clock.moveTo(*due);
            runtime().deliver();
        }
        clock.moveTo(end);
    }
    Rect editorPlace() override { return static_cast<qt::QtTextBox&>(inside_.anyEditor()).area(); }
    bool showsGuide() override { return static_cast<qt::QtGuideLine&>(inside_.anyGuide()).Visible(); }
    Bitmap picture() override { return qt::bitmapOf(widget_.grab().toImage()); }

  private:
    StageRuntime& runtime() { return world_->ownRuntime; }

    std::unique_ptr<qt::QtWorld> makeWorld(QWidget& container) {
        auto world = std::make_unique<StageWorld>(&container, nullptr, testFonts());
        world_ = world.get();
        return world;
    }

    ProgramWindow program_;
    StageWorld* world_ = nullptr; ///< of the widget
    LumtexListView widget_{&program_.window(), [this](QWidget& container) { return makeWorld(container); }};
    RecordingEvents events_;
    SignalRelay relay_{widget_, events_};
    ListViewInspector inside_{widget_.list()};
    UserHands hands_{program_.window(), [this] { runtime().deliver(); }};
};

} // namespace

std::unique_ptr<Stage> makeWidgetStage() {
    return std::make_unique<WidgetStage>();
}

} // namespace lumtex::testing
