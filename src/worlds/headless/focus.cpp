#include "worlds/headless/focus.h"

#include <utility>

namespace lumtex::headless {

void Focus::change(WindowHandle handle) {
    if (holder_ == handle)
        return;
    const WindowHandle old = std::exchange(holder_, handle);
    before_ = 0;
    if (Pane* pane = tree_.find(old))
        pane->lostFocus(handle != 0);
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

void Focus::switchAway() {
    const WindowHandle held = holder_;
    change(0);
    if (holder_ == 0 && held != 0)
        before_ = held;
}

void Focus::switchBack() {
    const Pane* pane = tree_.find(before_);
    if (pane != nullptr)
        moveTo(*pane);
}

} // namespace lumtex::headless
