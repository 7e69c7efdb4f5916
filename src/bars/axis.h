/// \file
/// One of the two directions in which a bar runs, and places of windows along and across it.
#pragma once

#include "platform/window.h"

namespace lumtex::bars {

enum class Axis : Byte { vertical, horizontal };

/// Reads and moves windows along an axis. All numbers are pixels of the windows' parent; a place that is no
/// 32-bit number throws RuntimeError 6.
class AlongAxis {
  public:
    explicit constexpr AlongAxis(Axis axis) : vertical_(axis == Axis::vertical) {}

    /// Of a point: what counts along the bar, and what counts across it.
    constexpr Single along(Single x, Single y) const { return vertical_ ? y : x; }
    constexpr Single across(Single x, Single y) const { return vertical_ ? x : y; }

    Single start(const Window& window) const { return vertical_ ? window.Top() : window.Left(); }
    Single length(const Window& window) const { return vertical_ ? window.Height() : window.Width(); }
    Single end(const Window& window) const { return start(window) + length(window); }
    Single breadth(const Window& window) const { return vertical_ ? window.Width() : window.Height(); }

    void placeStart(Window& window, Single start) const {
        if (vertical_)
            window.place(window.Left(), start, window.Width(), window.Height());
        else
            window.place(start, window.Top(), window.Width(), window.Height());
    }
    void placeLength(Window& window, Single length) const {
        if (vertical_)
            window.place(window.Left(), window.Top(), window.Width(), length);
        else
            window.place(window.Left(), window.Top(), length, window.Height());
    }
    /// Where the window begins across the bar, and how broad it is.
    void placeAcross(Window& window, Single start, Single breadth) const {
        if (vertical_)
            window.place(start, window.Top(), breadth, window.Height());
        else
            window.place(window.Left(), start, window.Width(), breadth);
    }
    void placeBreadth(Window& window, Single breadth) const {
        placeAcross(window, vertical_ ? window.Left() : window.Top(), breadth);
    }

  private:
    bool vertical_;
};

} // namespace lumtex::bars
