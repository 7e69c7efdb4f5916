/// \file
/// The window that the timers of a world tick through. It is never shown.
#pragma once

#include "worlds/common/early_presses.h"
#include "worlds/win32/tick_source.h"
#include "worlds/win32/window_class.h"

#include <unordered_map>

namespace lumtex::win32 {

class Win32Timer;

class TimerWindow {
  public:
    /// `ticks` must outlive the window. Throws RuntimeError 7 if the system gives no window.
    TimerWindow(HINSTANCE instance, TickSource& ticks);
    TimerWindow(const TimerWindow&) = delete;
    TimerWindow& operator=(const TimerWindow&) = delete;
    ~TimerWindow();

    /// Begins to tick; the number names this run of the timer. 0 if there is no timer left.
    UINT_PTR start(Win32Timer& timer, Long milliseconds);
    void stop(UINT_PTR run);
    /// What the timers by which controls notice the mouse have done.
    worlds::EarlyPresses::Noticed noticed() const;
    /// Whether one of them has not ticked that may be late.
    bool isLate() const;
    /// Lets each of these tick that has not since it was started.
    void tickQuickOnes();
    /// Has the thread of the window call `work` with `argument` when its messages run next. May be called
    /// from any thread, and `work` may end the window. False if the thread has gone, or takes no more
    /// messages.
    bool post(void (*work)(void*), void* argument) const;

  private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    void tick(UINT_PTR run);

    TickSource& ticks_;
    WindowClass class_;
    HWND window_ = nullptr;
    UINT_PTR lastRun_ = 0;
    struct Run {
        Win32Timer* timer;
        bool hasTicked = false;

        bool isQuick() const;
    };
    std::unordered_map<UINT_PTR, Run> running_;
};

} // namespace lumtex::win32
