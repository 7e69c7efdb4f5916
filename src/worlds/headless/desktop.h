/// \file
/// A small simulated desktop: windows, a pointer, a keyboard, timers on a clock that only moves by hand.
#pragma once

#include "platform/world.h"
#include "raster/font_library.h"
#include "worlds/common/focus.h"
#include "worlds/common/kept_tips.h"
#include "worlds/common/pointer.h"
#include "worlds/common/window_tree.h"
#include "worlds/headless/event_loop.h"
#include "worlds/headless/headless_runtime.h"
#include "worlds/headless/keyboard.h"
#include "worlds/headless/timer_clock.h"

#include <chrono>
#include <deque>
#include <memory>

namespace lumtex::headless {

class HeadlessWindow;

/// The world that tests, benchmarks and pictures run in. Nothing happens by itself: input comes through the
/// verbs below, and time passes through `advance`. Points are pixels of the desktop, or of a window's surface
/// if one is named.
///
/// A verb with `post` only changes state: the input has happened, the pointer is where it was moved to, and
/// the event waits until the loop runs. A plain verb also runs the loop, so that everything is delivered when
/// it returns. The `shift` of a verb adds to the shift keys that are held on the keyboard.
class Desktop final : public World {
  public:
    /// Pixels that one surface may have at most.
    static constexpr std::int64_t mostPixels = std::int64_t{1} << 26U;

    explicit Desktop(std::shared_ptr<raster::FontLibrary> fonts = raster::FontLibrary::ofSystem());
    ~Desktop() override;

    HeadlessRuntime& runtime() override { return runtime_; }
    worlds::KeptTips& tips() override { return tips_; }
    /// A window without a parent is shown from the start, as if its host had done so, and no UserControl_Show
    /// comes of that.
    std::unique_ptr<Window> createWindow(Window* parent, UserControl& client) override;
    std::unique_ptr<Window> createForm(UserControl& client) override;
    /// Counts as a yield: shows the form, runs `whileFormIsOpen`, then the loop. A form that is still open
    /// after that is hidden, as if the user had closed it.
    void showModal(Window& form) override;
    Point screenSize() const override { return {1024, 768}; }
    std::unique_ptr<TextBox> createTextBox(Window& parent, TextBoxClient& client) override;
    std::unique_ptr<GuideLine> createGuideLine(Window& parent) override;
    std::unique_ptr<Timer> createTimer(std::function<void()> onTimer) override;
    /// Throws RuntimeError 7 for more than `mostPixels`.
    std::unique_ptr<Surface> createSurface(Long width, Long height) override;

    // Pointer

    /// A point of the window's surface, on the desktop.
    Point onDesktop(const Window& window, Single x, Single y) const;
    Point onDesktop(const TextBox& box, Single x, Single y) const;
    Point pointer() const { return pointer_.place(); }

    void postMove(Point to, Integer shift = 0);
    void postPress(MouseButton button = leftButton, Integer shift = 0);
    /// The second press of a double click, which two presses alone never make.
    void postDoublePress(MouseButton button = leftButton, Integer shift = 0);
    void postRelease(MouseButton button = leftButton, Integer shift = 0);
    /// 120 a notch, positive away from the user.
    void postWheel(Long rotation, Integer shift = 0);

    void move(Point to, Integer shift = 0);
    void move(const Window& window, Single x, Single y, Integer shift = 0);
    /// Where the pointer is; the forms with a window move it there first.
    void press(MouseButton button = leftButton, Integer shift = 0);
    void press(const Window& window, Single x, Single y, MouseButton button = leftButton, Integer shift = 0);
    void release(MouseButton button = leftButton, Integer shift = 0);
    /// Press and release.
    void click(MouseButton button = leftButton, Integer shift = 0);
    void click(const Window& window, Single x, Single y, MouseButton button = leftButton, Integer shift = 0);
    /// A click, the second press, its release.
    void doubleClick(MouseButton button = leftButton, Integer shift = 0);
    void
    doubleClick(const Window& window, Single x, Single y, MouseButton button = leftButton, Integer shift = 0);
    /// Presses where the pointer is, moves, releases there.
    void dragTo(Point to, MouseButton button = leftButton, Integer shift = 0);
    void dragTo(const Window& window, Single x, Single y, MouseButton button = leftButton, Integer shift = 0);
    void wheel(Long rotation, Integer shift = 0);

    // Keyboard

    /// A key that enters a character posts that too. Shift, Control and Alt stay held until they go up.
    void postKeyDown(Integer keyCode, Integer shift = 0);
    void postKeyUp(Integer keyCode, Integer shift = 0);
    /// A character without a key, as an input method enters it.
    void postCharacter(Integer unit);

    void keyDown(Integer keyCode, Integer shift = 0);
    void keyUp(Integer keyCode, Integer shift = 0);
    /// Down and up.
    void key(Integer keyCode, Integer shift = 0);
    /// Each unit as its key goes down and up; one that has no key comes as `keys::packet`.
    void type(StringView text);
    /// The user goes to another program, and keys go with him.
    void switchAway() { focus_.switchAway(); }
    /// Back from there: what had the focus has it again.
    void switchBack() { focus_.switchBack(); }

    // Loop and clock

    /// Queues host code.
    void post(std::function<void()> body) { loop_.post(std::move(body)); }
    /// Delivers until nothing waits: events, then paints, then ticks that are due. Bounded, see EventLoop.
    void run() { loop_.run(); }
    bool idle() const { return loop_.idle(); }
    /// Whether a yield would do anything: something waits, or a body of `onYield`.
    bool hasPendingEvents() const { return !yieldHooks_.empty() || !loop_.idle(); }
    /// Each of the next `times` calls of `DoEvents` runs `body`, before anything that waits. Several bodies
    /// take turns in the order in which they were given.
    void onYield(std::function<void()> body, int times = 1);
    /// How many yields, or open message boxes, are on the stack.
    int yieldDepth() const { return loop_.yieldDepth(); }
    std::chrono::milliseconds time() const { return clock_.now(); }
    /// Lets time pass and delivers each tick at its moment, in order of time, then of arrival. A span below 0
    /// counts as none.
    void advance(std::chrono::milliseconds span) { loop_.advance(span); }
    /// Moves the clock without running anything; ticks that came due wait for the next run, one a timer.
    void jump(std::chrono::milliseconds span) { clock_.moveTo(clock_.after(span)); }

    // Looking

    /// The window as a user sees it, with all that lies in it, the pointer left out.
    Bitmap screenshot(const Window& window) const;
    /// The window that has the focus; null if a text box has it, or nothing.
    Window* focus() const;
    /// The window or text box that has the focus, or the mouse; 0 for none.
    WindowHandle focused() const;
    WindowHandle captured() const { return pointer_.captured(); }

    /// What a user does while a modal form is open, and host code that runs then.
    std::function<void(Window&)> whileFormIsOpen;

    // For what the desktop makes

    worlds::WindowTree& tree() { return tree_; }
    const worlds::WindowTree& tree() const { return tree_; }
    worlds::Focus& keyFocus() { return focus_; }
    worlds::Pointer& mouse() { return pointer_; }
    const std::shared_ptr<raster::FontLibrary>& fonts() const { return fonts_; }
    /// The pane, or what it lies in, was hidden or disabled.
    void inputLost(const worlds::Pane& pane);
    void postPaint(const worlds::Pane& pane);
    EventLoop& loop() { return loop_; }
    /// One yield of the control, with its hook.
    void yield();
    /// Throws RuntimeError 7 for more than `mostPixels`.
    static void refuseHugeSize(Long width, Long height);

  private:
    struct YieldHook {
        std::function<void()> body;
        int times;
    };

    /// Throws RuntimeError 5 for a window or box that is not of this desktop.
    worlds::Pane& paneOf(WindowHandle handle) const;
    void runYieldHook();
    Integer withHeldKeys(Integer shift) const;

    std::shared_ptr<raster::FontLibrary> fonts_;
    worlds::WindowTree tree_;
    TimerClock clock_;
    EventLoop loop_{clock_};
    worlds::Focus focus_{tree_};
    worlds::Pointer pointer_{tree_, focus_};
    Keyboard keyboard_{focus_};
    HeadlessRuntime runtime_;
    worlds::KeptTips tips_{tree_};
    std::deque<YieldHook> yieldHooks_;
};

} // namespace lumtex::headless
