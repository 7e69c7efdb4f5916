#include "worlds/common/window_tree.h"

#include <algorithm>

namespace lumtex::worlds {

namespace {

Pane* topmost(const std::vector<Pane*>& siblings, Point onDesktop) {
    for (auto it = siblings.rbegin(); it != siblings.rend(); ++it) {
        Pane* pane = *it;
        if (!pane->isVisible() || !pane->isEnabled() || !pane->covers(onDesktop))
            continue;
        Pane* inner = topmost(pane->children(), onDesktop);
        return inner != nullptr ? inner : pane;
    }
    return nullptr;
}

} // namespace

std::vector<Pane*>& WindowTree::siblingsOf(const Pane& pane) {
    return pane.parent_ != nullptr ? pane.parent_->children_ : topLevel_;
}

void WindowTree::insert(Pane& pane) {
    panes_.emplace(pane.handle(), &pane);
    siblingsOf(pane).push_back(&pane);
}

void WindowTree::remove(Pane& pane) {
    if (onRemove)
        onRemove(pane);
    panes_.erase(pane.handle());
    std::erase(siblingsOf(pane), &pane);
    for (Pane* orphan : pane.children_) {
        orphan->parent_ = nullptr;
        orphan->visible_ = false;
        topLevel_.push_back(orphan);
    }
}

Pane* WindowTree::find(WindowHandle handle) const {
    const auto found = panes_.find(handle);
    return found != panes_.end() ? found->second : nullptr;
}

void WindowTree::forEach(const std::function<void(Pane&)>& visit) const {
    for (const auto& [handle, pane] : panes_)
        visit(*pane);
}

Pane* WindowTree::at(Point onDesktop) const {
    return topmost(topLevel_, onDesktop);
}

bool WindowTree::adopt(Pane& parent, Pane& child) {
    if (parent.isWithin(child))
        return false;
    std::erase(siblingsOf(child), &child);
    child.parent_ = &parent;
    parent.children_.push_back(&child);
    return true;
}

} // namespace lumtex::worlds
