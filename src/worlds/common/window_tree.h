/// \file
/// All windows and text boxes of a world, by number and by place.
#pragma once

#include "worlds/common/pane.h"

#include <functional>
#include <unordered_map>
#include <vector>

namespace lumtex::worlds {

/// Does not own its panes; they enter and leave by themselves.
class WindowTree {
  public:
    WindowTree() = default;
    WindowTree(const WindowTree&) = delete;
    WindowTree& operator=(const WindowTree&) = delete;

    /// Unique, never 0, never given twice.
    WindowHandle newHandle() { return nextHandle_++; }
    /// Topmost among its siblings.
    void insert(Pane& pane);
    void remove(Pane& pane);

    /// Null for 0 and for a number that names nothing any more.
    Pane* find(WindowHandle handle) const;

    /// The topmost pane that takes input at a point of the desktop, or null. What is hidden or disabled lets
    /// the point through to what lies below.
    Pane* at(Point onDesktop) const;

    /// Calls `visit` with each pane, in no order that callers may rely on. It must let all panes stay.
    void forEach(const std::function<void(Pane&)>& visit) const;

    /// Puts `child` on top of the children of `parent`. Refused if `parent` lies within it.
    bool adopt(Pane& parent, Pane& child);

    /// Runs when a pane is about to leave the tree. It may be half destroyed: only its place can be asked.
    std::function<void(const Pane&)> onRemove;

  private:
    std::vector<Pane*>& siblingsOf(const Pane& pane);

    /// A number unlike the small ones that tests write by hand.
    WindowHandle nextHandle_ = 0x10001;
    std::unordered_map<WindowHandle, Pane*> panes_;
    std::vector<Pane*> topLevel_; ///< lowest first
};

} // namespace lumtex::worlds
