#include "widget_stage.h"

#include "list_fixture.h"
#include "recording_events.h"
#include "scenarios/report_line.h"
#include "signal_relay.h"
#include "stage_world.h"
#include "values/rounding.h"
#include "worlds/qt/qt_guide_line.h"
#include "worlds/qt/qt_picture.h"
#include "worlds/qt/qt_text_box.h"
#include "worlds/qt/user_hands.h"

#include <QApplication>
#include <utility>

namespace lumtex::testing {

namespace {

class WidgetStage final : public Stage {
  public:
    WidgetStage() {
        events_.depth = [this] { return loop_.depth; };
        loop_.onBox = [this](StringView text) { events_.log.push_back(reportLine(text)); };
        widget_.setGeometry(100, 100, 300, 200);
        widget_.show();
        loop_.deliver();
        events_.log.clear();
    }

    lmListView& list() override { return widget_.list(); }
    std::vector<std::string>& log() override { return events_.log; }
    void onEvent(const std::string& event, std::function<void()> handler) override {
        events_.on(event, std::move(handler));
    }
    void onYield(std::function<void()> body) override { loop_.yields.push_back(std::move(body)); }
    void cancelChecks(bool cancel) override { events_.cancelCheck = cancel; }

    void resize(Long width, Long height) override {
        widget_.resize(width, height);
        loop_.deliver();
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
        loop_.deliver();
    }
    void switchProgram(bool away) override {
        QApplication::setActiveWindow(away ? nullptr : &program_.window());
        loop_.deliver();
    }
    void advance(std::chrono::milliseconds span) override { loop_.advance(span); }
    Rect editorPlace() override { return static_cast<qt::QtTextBox&>(inside_.anyEditor()).area(); }
    bool showsGuide() override { return static_cast<qt::QtGuideLine&>(inside_.anyGuide()).Visible(); }
    Bitmap picture() override { return qt::bitmapOf(widget_.grab().toImage()); }

  private:
    ProgramWindow program_;
    StageLoop loop_;
    LumtexListView widget_{&program_.window(), [this](QWidget& container) {
                               return std::make_unique<StageWorld>(container, loop_);
                           }};
    RecordingEvents events_;
    SignalRelay relay_{widget_, events_};
    ListViewInspector inside_{widget_.list()};
    UserHands hands_{program_.window(), [this] { loop_.deliver(); }};
};

} // namespace

std::unique_ptr<Stage> makeWidgetStage() {
    return std::make_unique<WidgetStage>();
}

} // namespace lumtex::testing
