#include "headless_stage.h"

#include "list_fixture.h"
#include "recording_events.h"
#include "report_line.h"
#include "test_fonts.h"
#include "test_host.h"
#include "worlds/headless/desktop.h"

namespace lumtex::testing {

namespace {

/// Takes the focus from the list.
class Neighbour final : public UserControl {};

class HeadlessStage final : public Stage {
  public:
    explicit HeadlessStage(const std::function<std::unique_ptr<World>(headless::Desktop&)>& worldAround)
        : around_(worldAround ? worldAround(desktop_) : nullptr),
          neighbour_(desktop_.createWindow(nullptr, neighbourClient_)) {
        events_.depth = [this] { return desktop_.yieldDepth(); };
        desktop_.runtime().whileBoxIsOpen = [this] {
            events_.log.push_back(reportLine(desktop_.runtime().boxes.back().text));
        };
        list_.UserControl_ReadProperties(MemoryPropertyBag{});
        list_.window().place(100, 100, 300, 200);
        neighbour_->place(600, 100, 50, 50);
        desktop_.run();
        events_.log.clear();
    }

    lmListView& list() override { return list_; }
    std::vector<std::string>& log() override { return events_.log; }
    void onEvent(const std::string& event, std::function<void()> handler) override {
        events_.on(event, std::move(handler));
    }
    void onYield(std::function<void()> body) override { desktop_.onYield(std::move(body)); }
    void cancelChecks(bool cancel) override { events_.cancelCheck = cancel; }

    void resize(Long width, Long height) override {
        list_.window().place(100, 100, width, height);
        desktop_.run();
    }
    void move(Single x, Single y, Integer shift) override { desktop_.move(list_.window(), x, y, shift); }
    void press(MouseButton button, Integer shift) override { desktop_.press(button, shift); }
    void doublePress(MouseButton button, Integer shift) override {
        desktop_.postDoublePress(button, shift);
        desktop_.run();
    }
    void release(MouseButton button, Integer shift) override { desktop_.release(button, shift); }
    void wheel(Long rotation, Integer shift) override { desktop_.wheel(rotation, shift); }
    void keyDown(Integer keyCode) override { desktop_.keyDown(keyCode); }
    void keyUp(Integer keyCode) override { desktop_.keyUp(keyCode); }
    void type(StringView text) override { desktop_.type(text); }
    void focus(bool onTheList) override {
        (onTheList ? list_.window() : *neighbour_).setFocus();
        desktop_.run();
    }
    void switchProgram(bool away) override {
        if (away)
            desktop_.switchAway();
        else
            desktop_.switchBack();
        desktop_.run();
    }
    void advance(std::chrono::milliseconds span) override { desktop_.advance(span); }
    Rect editorPlace() override { return areaOf(inside_.editor()); }
    bool showsGuide() override { return inside_.guide().Visible(); }
    Bitmap picture() override { return desktop_.screenshot(list_.window()); }

  private:
    headless::Desktop desktop_{testFonts()};
    std::unique_ptr<World> around_;
    TestHost host_;
    RecordingEvents events_;
    lmListView list_{around_ ? *around_ : static_cast<World&>(desktop_), host_, events_};
    ListViewInspector inside_{list_};
    Neighbour neighbourClient_;
    std::unique_ptr<Window> neighbour_;
};

} // namespace

std::unique_ptr<Stage>
makeHeadlessStage(const std::function<std::unique_ptr<World>(headless::Desktop&)>& worldAround) {
    return std::make_unique<HeadlessStage>(worldAround);
}

} // namespace lumtex::testing
