/// \file
/// A world of Qt whose time is moved by hand, and the program around the widget.
#pragma once

#include "values/text.h"
#include "worlds/common/nesting_level.h"
#include "worlds/headless/timer_clock.h"
#include "worlds/qt/qt_runtime.h"
#include "worlds/qt/qt_world.h"

#include <QWidget>
#include <chrono>
#include <deque>
#include <functional>

namespace lumtex::testing {

/// What goes on around a widget. It outlives the worlds of all widgets that are made in it.
class StageLoop {
  public:
    /// Lets all events and due ticks through, outside of any yield.
    void deliver();
    /// Each tick comes at its moment.
    void advance(std::chrono::milliseconds span);
    /// Runs the body that the next yield runs, if there is one.
    void runYieldBody();

    headless::TimerClock clock;
    std::deque<std::function<void()>> yields; ///< each runs once, the first one in the next yield
    std::function<void(StringView)> onBox;    ///< told of the text
    int depth = 0;                            ///< yields and boxes that are under way
};

/// The runtime of Qt, with boxes that are told of and dismissed, and host code in its yields.
class StageRuntime final : public qt::QtRuntime {
  public:
    StageRuntime(worlds::Pointer& pointer, StageLoop& loop) : qt::QtRuntime(pointer), loop_(loop) {}

    void DoEvents() override;
    bool hasPendingEvents() const override { return true; }
    void messageBox(StringView text, BoxStyle style, StringView title) override;

  private:
    void letThrough();

    StageLoop& loop_;
};

/// The world of Qt with timers that tick by hand.
class StageWorld final : public qt::QtWorld {
  public:
    StageWorld(QWidget& container, StageLoop& loop);

    std::unique_ptr<Timer> createTimer(std::function<void()> onTimer) override;
    Runtime& runtime() override { return runtime_; }

  private:
    StageLoop& loop_;
    StageRuntime runtime_;
};

/// The window of the program, and somebody beside the list who can have the focus.
class ProgramWindow {
  public:
    ProgramWindow();

    QWidget& window() { return window_; }
    QWidget& neighbour() { return neighbour_; }

  private:
    QWidget window_;
    QWidget neighbour_;
};

} // namespace lumtex::testing
