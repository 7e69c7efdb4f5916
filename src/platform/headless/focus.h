/// \file
/// Which pane the keyboard belongs to.
#pragma once

#include "platform/headless/window_tree.h"

namespace lumtex {

/// Both sides of a change are told before the call returns: first the one that lost the focus, then, if it
/// still has it by then, the one that got it.
class Focus {
  public:
    explicit Focus(WindowTree& tree) : tree_(tree) {}
    Focus(const Focus&) = delete;
    Focus& operator=(const Focus&) = delete;

    /// The pane with the focus, or none.
    Pane* holder() const { return tree_.find(holder_); }
    /// No effect for a pane that takes no input.
    void moveTo(const Pane& pane);
    /// `pane` takes no input any more: if the focus is within it, the nearest pane around it that does gets
    /// it.
    void leave(const Pane& pane);
    /// `pane` goes away: a focus within it goes too, and nobody is told.
    void forget(const Pane& pane);

  private:
    void change(WindowHandle handle);

    WindowTree& tree_;
    WindowHandle holder_ = 0;
};

} // namespace lumtex
