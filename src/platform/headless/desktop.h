/// \file
/// A small simulated desktop: windows, a pointer, a keyboard, timers on a clock that only moves by hand.
#pragma once

#include "platform/headless/headless_runtime.h"
#include "platform/raster/font_library.h"
#include "platform/world.h"

#include <chrono>
#include <deque>
#include <memory>
#include <vector>

namespace lumtex {

class HeadlessWindow;
class HeadlessTextBox;
class HeadlessGuideLine;
class HeadlessTimer;

/// The world that tests, benchmarks and pictures run in. Nothing happens by itself: input is queued or
/// delivered by the verbs below, and time passes through `advance`. Positions are pixels of the desktop,
/// whose origin is that of every top-level window's parent.
///
/// Plain verbs queue the input and run the queue; those with `post` only queue.
class Desktop final : public World {
  public:
    explicit Desktop(std::shared_ptr<raster::FontLibrary> fonts = raster::FontLibrary::ofSystem());
    ~Desktop() override;

    HeadlessRuntime& runtime() override { return runtime_; }
    std::unique_ptr<Window> createWindow(Window* parent, UserControl& client) override;
    std::unique_ptr<TextBox> createTextBox(Window& parent, TextBoxClient& client) override;
    std::unique_ptr<GuideLine> createGuideLine(Window& parent) override;
    std::unique_ptr<Timer> createTimer(std::function<void()> onTimer) override;
    std::unique_ptr<Surface> createSurface(Long width, Long height) override;

    // Pointer

    /// A point of the window's surface, on the desktop.
    Point onDesktop(const Window& window, Single x, Single y) const;
    Point pointer() const { return pointer_; }
    void postMove(Point to);
    void postPress(MouseButton button = leftButton, Integer shift = 0);
    void postRelease(MouseButton button = leftButton, Integer shift = 0);
    void postDoublePress(MouseButton button = leftButton, Integer shift = 0);
    void postWheel(Long rotation, Integer shift = 0);
    void move(Point to);
    void press(MouseButton button = leftButton, Integer shift = 0);
    void release(MouseButton button = leftButton, Integer shift = 0);
    void click(MouseButton button = leftButton, Integer shift = 0);
    void doubleClick(MouseButton button = leftButton, Integer shift = 0);
    /// Presses where the pointer is, moves, releases there.
    void dragTo(Point to, MouseButton button = leftButton, Integer shift = 0);
    void wheel(Long rotation, Integer shift = 0);

    // Keyboard; key codes are the classic virtual key numbers

    void postKeyDown(Integer keyCode, Integer shift = 0);
    void postKeyUp(Integer keyCode, Integer shift = 0);
    void postCharacter(Integer character);
    void key(Integer keyCode, Integer shift = 0);
    void type(StringView text);

    // Queue and clock

    /// Runs what is queued, and what that queues. Stops after `longestRun` events, so that a storm that feeds
    /// itself ends.
    void run();
    static constexpr int longestRun = 100000;
    bool idle() const { return queue_.empty(); }
    /// The next `DoEvents` runs `body` once, before anything that is queued.
    void onYield(std::function<void()> body) { yieldHooks_.push_back(std::move(body)); }
    /// How many yields are on the stack.
    int yieldDepth() const { return yieldDepth_; }
    std::chrono::milliseconds time() const { return time_; }
    /// Lets time pass and delivers each tick at its moment, in order of time, then of arrival.
    void advance(std::chrono::milliseconds span);
    /// Moves the clock without running anything; ticks that came due wait for the next run.
    void jump(std::chrono::milliseconds span) { time_ += span; }

    // Looking

    /// The window as a user sees it, with all that lies in it.
    Bitmap screenshot(const Window& window) const;
    Window* focus() const;

  private:
    friend class HeadlessWindow;
    friend class HeadlessTextBox;
    friend class HeadlessTimer;
    friend class HeadlessRuntime;

    void doEvents();
    void post(std::function<void()> deliver);
    bool deliverOne();
    HeadlessTimer* dueTimer();
    HeadlessWindow* windowAt(Point point) const;
    HeadlessWindow* mouseTarget() const;
    HeadlessWindow* find(WindowHandle handle) const;
    void deliverMouse(void (UserControl::*handler)(Integer, Integer, Single, Single),
                      HeadlessWindow& target,
                      Integer button,
                      Integer shift);
    void deliverPress(MouseButton button, Integer shift, bool isDouble);
    void deliverRelease(MouseButton button, Integer shift);
    void deliverMove(Point to);
    void setFocus(WindowHandle handle);
    void forget(WindowHandle handle);

    std::shared_ptr<raster::FontLibrary> fonts_;
    HeadlessRuntime runtime_;
    std::vector<HeadlessWindow*> windows_; ///< all, in order of creation
    std::vector<HeadlessTextBox*> textBoxes_;
    std::vector<HeadlessGuideLine*> guideLines_;
    std::vector<HeadlessTimer*> timers_;
    WindowHandle nextHandle_ = 0x10001;
    std::deque<std::function<void()>> queue_;
    std::deque<std::function<void()>> yieldHooks_;
    int yieldDepth_ = 0;
    std::chrono::milliseconds time_{0};
    Point pointer_{-1, -1};
    Integer heldButton_ = noButton;
    WindowHandle capture_ = 0;
    WindowHandle pressed_ = 0; ///< the window whose press waits for its release
    WindowHandle focus_ = 0;
};

} // namespace lumtex
