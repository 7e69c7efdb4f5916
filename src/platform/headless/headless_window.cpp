#include "platform/headless/headless_window.h"

#include "platform/rounding.h"

#include <algorithm>

namespace lumtex {

HeadlessWindow::HeadlessWindow(Desktop& desktop,
                               HeadlessWindow* parent,
                               UserControl& client,
                               WindowHandle handle)
    : desktop_(desktop), parent_(parent), client_(client), handle_(handle), surface_(0, 0, desktop.fonts_) {
    desktop_.windows_.push_back(this);
}

HeadlessWindow::~HeadlessWindow() {
    std::erase(desktop_.windows_, this);
    for (HeadlessWindow* window : desktop_.windows_) {
        if (window->parent_ == this)
            window->parent_ = nullptr;
    }
    desktop_.forget(handle_);
}

void HeadlessWindow::place(Single left, Single top, Single width, Single height) {
    left_ = roundToLong(left);
    top_ = roundToLong(top);
    const Long newWidth = std::max<Long>(roundToLong(width), 0);
    const Long newHeight = std::max<Long>(roundToLong(height), 0);
    if (newWidth == surface_.scaleWidth() && newHeight == surface_.scaleHeight())
        return;
    surface_.resize(newWidth, newHeight);
    client_.UserControl_Resize();
}

void HeadlessWindow::letVisible(bool visible) {
    visible_ = visible;
    if (visible && !wasShown_) {
        wasShown_ = true;
        client_.UserControl_Show();
    }
}

void HeadlessWindow::setFocus() {
    desktop_.setFocus(handle_);
}
void HeadlessWindow::setCapture() {
    desktop_.capture_ = handle_;
}

void HeadlessWindow::releaseCapture() {
    if (desktop_.capture_ == handle_)
        desktop_.capture_ = 0;
}

Point HeadlessWindow::origin() const {
    Point origin{left_, top_};
    for (const HeadlessWindow* window = parent_; window != nullptr; window = window->parent_) {
        origin.x += window->left_;
        origin.y += window->top_;
    }
    return origin;
}

bool HeadlessWindow::shown() const {
    return visible_ && (parent_ == nullptr || parent_->shown());
}
bool HeadlessWindow::takesInput() const {
    return enabled_ && (parent_ == nullptr || parent_->takesInput());
}

bool HeadlessWindow::contains(Point onDesktop) const {
    const Point at = origin();
    const bool inside = onDesktop.x >= at.x && onDesktop.y >= at.y &&
                        onDesktop.x < at.x + surface_.scaleWidth() &&
                        onDesktop.y < at.y + surface_.scaleHeight();
    return inside && (parent_ == nullptr || parent_->contains(onDesktop));
}

bool HeadlessWindow::underPointer() const {
    return desktop_.windowAt(desktop_.pointer_) == this;
}

bool HeadlessWindow::pointerStrictlyInside() const {
    const Point at = origin();
    const Point point = desktop_.pointer_;
    return underPointer() && at.x < point.x && at.y < point.y && at.x + surface_.scaleWidth() > point.x &&
           at.y + surface_.scaleHeight() > point.y;
}

Point HeadlessWindow::pointer() const {
    const Point at = origin();
    return {desktop_.pointer_.x - at.x, desktop_.pointer_.y - at.y};
}

bool HeadlessWindow::adopt(WindowHandle child) {
    HeadlessWindow* window = desktop_.find(child);
    // A window cannot lie in itself, nor in what lies in it.
    for (const HeadlessWindow* outer = this; outer != nullptr; outer = outer->parent_) {
        if (outer == window)
            return false;
    }
    if (window == nullptr)
        return false;
    window->parent_ = this;
    return true;
}

} // namespace lumtex
