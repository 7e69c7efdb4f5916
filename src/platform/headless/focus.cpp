#include "platform/headless/focus.h"

#include <utility>

namespace lumtex {

void Focus::change(WindowHandle handle) {
    if (holder_ == handle)
        return;
    const WindowHandle old = std::exchange(holder_, handle);
    if (Pane* pane = tree_.find(old))
        pane->lostFocus();
    Pane* pane = tree_.find(handle);
    if (pane != nullptr && holder_ == handle)
        pane->gotFocus();
}

void Focus::moveTo(const Pane& pane) {
    if (pane.takesInput())
        change(pane.handle());
}

void Focus::leave(const Pane& pane) {
    const Pane* held = holder();
    if (held == nullptr || !held->isWithin(pane))
        return;
    const Pane* outer = pane.parent();
    while (outer != nullptr && !outer->takesInput())
        outer = outer->parent();
    change(outer != nullptr ? outer->handle() : 0);
}

void Focus::forget(const Pane& pane) {
    const Pane* held = holder();
    if (held != nullptr && held->isWithin(pane))
        holder_ = 0;
}

} // namespace lumtex
