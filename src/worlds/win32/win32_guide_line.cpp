#include "worlds/win32/win32_guide_line.h"

#include "values/rounding.h"
#include "values/runtime_error.h"

namespace lumtex::win32 {

namespace {

int wholePixel(Single coordinate) {
    try {
        return roundToLong(coordinate);
    } catch (const RuntimeError&) {
        return 0;
    }
}

} // namespace

Win32GuideLine::Win32GuideLine(Win32Window& parent) : parent_(&parent) {
    parent.add(*this);
}

Win32GuideLine::~Win32GuideLine() {
    if (parent_ != nullptr)
        parent_->remove(*this);
}

void Win32GuideLine::letVisible(bool visible) {
    if (visible == visible_)
        return;
    visible_ = visible;
    if (parent_ != nullptr)
        parent_->present();
}

void Win32GuideLine::place(Single x, Single height) {
    x_ = x;
    height_ = height;
    if (visible_ && parent_ != nullptr)
        parent_->present();
}

void Win32GuideLine::paintOn(HDC target) const {
    HGDIOBJ old = SelectObject(target, GetStockObject(BLACK_PEN));
    MoveToEx(target, wholePixel(x_), 0, nullptr);
    LineTo(target, wholePixel(x_), wholePixel(height_));
    SelectObject(target, old);
}

} // namespace lumtex::win32
