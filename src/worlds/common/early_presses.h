/// \file
/// Presses that arrive before anything has noticed the move that leads to them.
#pragma once

#include "platform/window.h"

#include <deque>
#include <functional>

namespace lumtex::worlds {

/// A hand is slower than the timers by which controls notice the mouse: they tick between its move and its
/// press, and its release comes when the press has been told. A touch or a pen that the system makes mouse
/// events of, and programs that test or control others, send all of that at once; and what a hand did while
/// the program was busy arrives at once, too, before any timer. Such a press waits until its move has been
/// told and those ticks have come, and what follows on the same window waits for the press. Everything else
/// is told as it comes.
class EarlyPresses {
  public:
    /// Milliseconds that lie between a move and a press of any hand.
    static constexpr Long handsGap = 10;

    /// Of the timers whose interval is within `handsGap`: none runs, one has not ticked since it was started,
    /// or all have.
    enum class Noticed : Byte { nothing, soon, already };

    /// `tick` lets those timers tick that have not since they were started.
    EarlyPresses(std::function<Noticed()> noticed, std::function<void()> tick);

    /// Tells a move, and behind it what had to wait for that.
    void move(WindowHandle window, const std::function<void()>& tell);
    /// Tells a press. `isEarly`: it came with its move, of a touch or a pen, or before a tick that is late.
    /// One that comes in a yield of a move before anything has noticed the mouse did so too.
    void press(WindowHandle window, bool isEarly, const std::function<void()>& tell);
    /// Tells whatever else the mouse does, in its turn.
    void other(WindowHandle window, const std::function<void()>& tell);

  private:
    bool mustWait(WindowHandle window) const;
    void tellHeld();

    std::function<Noticed()> noticed_;
    std::function<void()> tick_;
    std::deque<std::function<void()>> held_;
    WindowHandle window_ = 0; ///< whose events wait
    bool telling_ = false;    ///< what was held
    int depth_ = 0;           ///< of moves that are being told
};

} // namespace lumtex::worlds
