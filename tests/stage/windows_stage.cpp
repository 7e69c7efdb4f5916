#include "windows_stage.h"

#include "list_fixture.h"
#include "manual_ticks.h"
#include "recording_events.h"
#include "scenarios/report_line.h"
#include "user_input.h"
#include "values/rounding.h"
#include "worlds/common/nesting_level.h"
#include "worlds/win32/win32_guide_line.h"
#include "worlds/win32/win32_list.h"
#include "worlds/win32/win32_text_box.h"
#include "worlds/win32/window_pictures.h"

#include <deque>
#include <stdexcept>
#include <utility>

namespace lumtex::testing {

namespace {

/// The system's runtime, with boxes that are noted and dismissed, and host code in its yields.
class StageRuntime final : public win32::Win32Runtime {
  public:
    using win32::Win32Runtime::Win32Runtime;

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
    bool hasPendingEvents() const override {
        return !yields.empty() || win32::Win32Runtime::hasPendingEvents();
    }
    void messageBox(StringView text, BoxStyle /*style*/, StringView /*title*/) override {
        const worlds::NestingLevel level(depth);
        onBox(text);
        deliver();
    }
    /// Lets all messages through, outside of any yield.
    void deliver() {
        do
            win32::Win32Runtime::DoEvents();
        while (win32::Win32Runtime::hasPendingEvents());
    }
};

/// Takes the focus from the list.
class Neighbour final : public UserControl {};

class WindowsStage final : public Stage {
  public:
    WindowsStage() : neighbour_(world_.createWindow(nullptr, neighbourClient_)) {
        events_.depth = [this] { return runtime_.depth; };
        runtime_.onBox = [this](StringView text) { events_.log.push_back(reportLine(text)); };
        // Not off the program's window: on its way back the display would look at the shift keys.
        POINT aside{5, 5};
        ClientToScreen(programWindow(), &aside);
        input_.move(aside, 0);
        list_.UserControl_ReadProperties(MemoryPropertyBag{});
        list_.window().place(100, 100, 300, 200);
        neighbour_->place(600, 100, 50, 50);
        SetFocus(programWindow());
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
        POINT to{roundToLong(x), roundToLong(y)};
        ClientToScreen(win32::toHWND(list_.window().hWnd()), &to);
        input_.move(to, shift);
    }
    void press(MouseButton button, Integer shift) override { input_.press(button, shift); }
    void doublePress(MouseButton button, Integer shift) override { input_.doublePress(button, shift); }
    void release(MouseButton button, Integer shift) override { input_.release(button, shift); }
    void wheel(Long rotation, Integer shift) override { input_.wheel(rotation, shift); }
    void keyDown(Integer keyCode) override { input_.keyDown(keyCode); }
    void keyUp(Integer keyCode) override { input_.keyUp(keyCode); }
    void type(StringView text) override { input_.type(text); }
    void focus(bool onTheList) override {
        (onTheList ? list_.window() : *neighbour_).setFocus();
        runtime_.deliver();
    }
    /// The desktop itself belongs to another program. Coming back, a program's window gives the focus to what
    /// had it.
    void switchProgram(bool away) override {
        if (away) {
            focusBefore_ = GetFocus();
            SetForegroundWindow(GetDesktopWindow());
        } else {
            SetForegroundWindow(programWindow());
            if (IsWindowVisible(focusBefore_))
                SetFocus(focusBefore_);
        }
        runtime_.deliver();
    }
    void advance(std::chrono::milliseconds span) override {
        ticks_.advance(span, [this] { runtime_.deliver(); });
    }
    Rect editorPlace() override { return areaOf(static_cast<win32::Win32TextBox&>(inside_.anyEditor())); }
    bool showsGuide() override { return static_cast<win32::Win32GuideLine&>(inside_.anyGuide()).Visible(); }
    Bitmap picture() override { return screenPicture(win32::toHWND(list_.window().hWnd())); }

  private:
    /// One for all stages, because it takes the system long to show one.
    static HWND programWindow() {
        static const ProgramWindow program(700, 400);
        if (program.get() == nullptr)
            throw std::runtime_error("no display");
        return program.get();
    }

    StageRuntime runtime_{GetModuleHandleW(nullptr)};
    ManualTicks ticks_;
    win32::Win32World world_{GetModuleHandleW(nullptr), programWindow(), &runtime_, ticks_};
    UserInput input_{[this] { runtime_.deliver(); }};
    TestHost host_;
    RecordingEvents events_;
    lmListView list_{world_, host_, events_};
    ListViewInspector inside_{list_};
    HWND focusBefore_ = nullptr;
    Neighbour neighbourClient_;
    std::unique_ptr<Window> neighbour_;
};

} // namespace

std::unique_ptr<Stage> makeWindowsStage() {
    return std::make_unique<WindowsStage>();
}

} // namespace lumtex::testing
