/// \file
/// The world on Windows: real windows, the system's own text box and tips, its settings, files and clock.
#pragma once

#include "platform/world.h"
#include "worlds/common/click_sequence.h"
#include "worlds/common/early_presses.h"
#include "worlds/win32/timer_window.h"
#include "worlds/win32/win32_runtime.h"
#include "worlds/win32/win32_tips.h"
#include "worlds/win32/window_class.h"

#include <optional>

namespace lumtex::win32 {

/// A message on its way to one of our windows.
struct WindowMessage {
    HWND window;
    UINT number;
    WPARAM wParam;
    LPARAM lParam;
};

/// Belongs to the thread that makes it, as do all things made by it.
///
/// Press, focus, capture and click follow one another as `ClickSequence` has it.
class Win32World final : public World {
  public:
    /// Pixels that one surface may have at most.
    static constexpr std::int64_t mostPixels = std::int64_t{1} << 26U;

    /// `instance` is the module that this code is part of. Windows without a parent lie in `container`; with
    /// none, in a place of the system that is never shown, until somebody gives them a parent. `runtime`
    /// stands in for the world's own one, `ticks` for the system's timers; both must outlive the world.
    explicit Win32World(HINSTANCE instance,
                        HWND container = nullptr,
                        Runtime* runtime = nullptr,
                        TickSource& ticks = systemTicks());
    /// All windows, boxes, tips and timers must be gone.
    ~Win32World() override;

    Runtime& runtime() override { return runtime_ != nullptr ? *runtime_ : ownRuntime_; }
    Win32Runtime& ownRuntime() { return ownRuntime_; }
    Win32Tips& tips() override { return tips_; }
    /// A window without a parent is a child of the container, shown from the start, and no UserControl_Show
    /// comes of that.
    std::unique_ptr<Window> createWindow(Window* parent, UserControl& client) override;
    std::unique_ptr<Window> createForm(UserControl& client) override;
    void showModal(Window& form) override;
    Point screenSize() const override;
    std::unique_ptr<TextBox> createTextBox(Window& parent, TextBoxClient& client) override;
    std::unique_ptr<GuideLine> createGuideLine(Window& parent) override;
    std::unique_ptr<Timer> createTimer(std::function<void()> onTimer) override;
    /// Throws RuntimeError 7 for more than `mostPixels`.
    std::unique_ptr<Surface> createSurface(Long width, Long height) override;
    std::unique_ptr<WheelHook> createWheelHook(Window& parent, const WheelHook::OnWheel& onWheel) override;

    /// Sees each message of our windows and text boxes before they do. A result means that the message was
    /// dealt with. Whoever destroys the window in it must give a result. Must not throw.
    std::function<std::optional<LRESULT>(const WindowMessage&)> onMessage;

    /// Told when one of our windows has a new picture for the screen. Must not throw.
    std::function<void()> onPresent;

    /// The world of the nearest window of ours around a window, or of that window itself; null if there is
    /// none.
    static Win32World* of(HWND window);

    /// The object that the world belongs to; may be null. It is counted while a message, a tick or a turn of
    /// the wheel is told, so that a handler that lets go of the last reference does not destroy what still
    /// runs.
    IUnknown* owner = nullptr;

    /// Has the thread of the world call `work` with `argument` when its messages run next. May be called from
    /// any thread, and `work` may end the world. False if that thread has gone. `work` must not throw.
    bool post(void (*work)(void*), void* argument) const { return timers_.post(work, argument); }

    // For what the world makes

    HINSTANCE instance() const { return instance_; }
    const WindowClass& surfaceClass() const { return surfaceClass_; }
    /// Throws RuntimeError 7 for more than `mostPixels`.
    static void refuseHugeSize(Long width, Long height);

    worlds::ClickSequence press;
    /// The program was busy since the mouse came, and nothing has noticed the mouse yet.
    bool tickIsLate() const { return timers_.isLate(); }
    worlds::EarlyPresses earlyPresses{[this] { return timers_.noticed(); },
                                      [this] { timers_.tickQuickOnes(); }};

    /// Gives up the capture, whoever of the thread has it. The system makes up a move then, for the window
    /// that is under the mouse when messages run next.
    static void giveUpCapture();

    /// While one lives, nothing that happens to windows is reported: their owners are going.
    class Quiet {
      public:
        explicit Quiet(Win32World& world) : depth_(world.quietDepth_) { ++depth_; }
        Quiet(const Quiet&) = delete;
        Quiet& operator=(const Quiet&) = delete;
        ~Quiet() { --depth_; }

      private:
        int& depth_;
    };
    bool isQuiet() const { return quietDepth_ > 0; }

  private:
    HINSTANCE instance_;
    HWND container_;
    Runtime* runtime_;
    int quietDepth_ = 0;
    WindowClass surfaceClass_;
    TimerWindow timers_;
    Win32Runtime ownRuntime_;
    Win32Tips tips_;
};

} // namespace lumtex::win32
