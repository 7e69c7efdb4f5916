#include "worlds/qt/qt_guide_line.h"

#include "values/rounding.h"
#include "values/runtime_error.h"

namespace lumtex::qt {

namespace {

Long wholePixel(Single coordinate) {
    try {
        return roundToLong(coordinate);
    } catch (const RuntimeError&) {
        return 0;
    }
}

} // namespace

QtGuideLine::QtGuideLine(QtWindow& parent) : parent_(&parent) {
    parent.addGuide(*this);
}

QtGuideLine::~QtGuideLine() {
    if (parent_ != nullptr)
        parent_->removeGuide(*this);
}

void QtGuideLine::place(Single x, Single height) {
    x_ = x;
    height_ = height;
    if (visible_ && parent_ != nullptr)
        parent_->present();
}

void QtGuideLine::letVisible(bool visible) {
    if (visible == visible_)
        return;
    visible_ = visible;
    if (parent_ != nullptr)
        parent_->present();
}

Point QtGuideLine::from() const {
    return {wholePixel(x_), 0};
}
Point QtGuideLine::to() const {
    return {wholePixel(x_), wholePixel(height_)};
}

} // namespace lumtex::qt
