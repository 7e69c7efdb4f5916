#include "worlds/common/focus.h"

#include <utility>

namespace lumtex::worlds {

void Focus::change(WindowHandle handle, bool toOther) {
    if (holder_ == handle)
        return;
    const WindowHandle old = std::exchange(holder_, handle);
    before_ = 0;
    if (Pane* pane = tree_.find(old))
        pane->lostFocus(toOther);
    Pane* pane = tree_.find(handle);
    if (pane != nullptr && holder_ == handle)
        pane->gotFocus();
}

void Focus::moveTo(const Pane& pane) {
    const WindowHandle handle = pane.handle();
    if (pane.takesInput() && mayChange(&pane) && tree_.find(handle) != nullptr)
        change(handle, true);
}

void Focus::leave(const Pane& pane) {
    const Pane* held = holder();
    if (held == nullptr || !held->isWithin(pane))
        return;
    const Pane* outer = pane.parent();
    while (outer != nullptr && !outer->takesInput())
        outer = outer->parent();
    const WindowHandle next = outer != nullptr ? outer->handle() : 0;
    if (mayChange(outer) && (next == 0 || tree_.find(next) != nullptr))
        change(next, next != 0);
}

void Focus::forget(const Pane& pane) {
    const Pane* held = holder();
    if (held != nullptr && held->isWithin(pane))
        holder_ = 0;
}

void Focus::moveAway() {
    change(0, true);
}

void Focus::switchAway() {
    const WindowHandle held = holder_;
    change(0, false);
    if (holder_ == 0 && held != 0)
        before_ = held;
}

void Focus::switchBack() {
    const Pane* pane = tree_.find(before_);
    if (pane != nullptr)
        moveTo(*pane);
}

} // namespace lumtex::worlds
