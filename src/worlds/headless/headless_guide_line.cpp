#include "worlds/headless/headless_guide_line.h"

#include "values/rounding.h"
#include "values/runtime_error.h"

namespace lumtex::headless {

namespace {

Long wholePixel(Single coordinate) {
    try {
        return roundToLong(coordinate);
    } catch (const RuntimeError&) {
        return 0;
    }
}

} // namespace

HeadlessGuideLine::HeadlessGuideLine(HeadlessWindow& parent) : parent_(&parent) {
    parent.addGuide(*this);
}

HeadlessGuideLine::~HeadlessGuideLine() {
    if (parent_ != nullptr)
        parent_->removeGuide(*this);
}

Point HeadlessGuideLine::from() const {
    return {wholePixel(x_), 0};
}
Point HeadlessGuideLine::to() const {
    return {wholePixel(x_), wholePixel(height_)};
}

} // namespace lumtex::headless
