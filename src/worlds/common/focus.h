/// \file
/// Which pane the keyboard belongs to.
#pragma once

#include "worlds/common/window_tree.h"

#include <functional>

namespace lumtex::worlds {

/// Both sides of a change hear of it before the call returns: first the one that lost the focus, then, if it
/// still has it by then, the one that got it.
///
/// While the user is in another program, no pane has it.
class Focus {
  public:
    explicit Focus(WindowTree& tree) : tree_(tree) {}
    Focus(const Focus&) = delete;
    Focus& operator=(const Focus&) = delete;

    /// The pane with the focus, or null.
    Pane* holder() const { return tree_.find(holder_); }
    /// No effect for a pane that takes no input.
    void moveTo(const Pane& pane);
    /// `pane` takes no input any more: if the focus is within it, the nearest pane around it that does gets
    /// it.
    void leave(const Pane& pane);
    /// `pane` goes away: a focus within it goes too, without any event.
    void forget(const Pane& pane);
    /// Something of the program that is no pane gets the focus.
    void moveAway();
    /// The user goes to another program.
    void switchAway();
    /// The user comes back: what had the focus then has it again, if it still takes input.
    void switchBack();

    /// For a platform with a focus of its own: brings that to a pane, or to none, before either side of the
    /// change hears of it. False if it does not go there now; then nothing changes.
    std::function<bool(const Pane*)> claim;

  private:
    bool mayChange(const Pane* to) const { return !claim || claim(to); }
    /// `toOther`: something of the program gets it, be it a pane or not.
    void change(WindowHandle handle, bool toOther);

    WindowTree& tree_;
    WindowHandle holder_ = 0;
    WindowHandle before_ = 0; ///< who had it when the user went away
};

} // namespace lumtex::worlds
