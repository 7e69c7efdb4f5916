#include "worlds/common/pane.h"

#include "worlds/common/window_tree.h"

#include <algorithm>
#include <limits>

namespace lumtex::worlds {

namespace {

/// Places may be anywhere in 32 bits, so sums of them are made in 64.
Long saturated(std::int64_t value) {
    return static_cast<Long>(
        std::clamp<std::int64_t>(value, std::numeric_limits<Long>::min(), std::numeric_limits<Long>::max()));
}

struct WidePoint {
    std::int64_t x = 0;
    std::int64_t y = 0;
};

WidePoint wideOrigin(const Pane& pane) {
    WidePoint origin;
    for (const Pane* outer = &pane; outer != nullptr; outer = outer->parent()) {
        origin.x += outer->area().Left;
        origin.y += outer->area().Top;
        if (outer->parent() == nullptr) {
            origin.x += outer->base().x;
            origin.y += outer->base().y;
        }
    }
    return origin;
}

} // namespace

Pane::Pane(WindowTree& tree, Pane* parent) : tree_(tree), handle_(tree.newHandle()), parent_(parent) {
    tree_.insert(*this);
}

Pane::~Pane() {
    tree_.remove(*this);
}

void Pane::letArea(Point corner, Long width, Long height) {
    area_ = {corner.x,
             corner.y,
             saturated(std::int64_t{corner.x} + width),
             saturated(std::int64_t{corner.y} + height)};
}

Point Pane::origin() const {
    const WidePoint origin = wideOrigin(*this);
    return {saturated(origin.x), saturated(origin.y)};
}

Point Pane::fromDesktop(Point point) const {
    const WidePoint origin = wideOrigin(*this);
    return {saturated(point.x - origin.x), saturated(point.y - origin.y)};
}

bool Pane::covers(Point onDesktop) const {
    const Point at = fromDesktop(onDesktop);
    const auto width = std::int64_t{area_.Right} - area_.Left;
    const auto height = std::int64_t{area_.Bottom} - area_.Top;
    const bool inside = at.x >= 0 && at.y >= 0 && at.x < width && at.y < height;
    return inside && (parent_ == nullptr || parent_->covers(onDesktop));
}

bool Pane::isWithin(const Pane& outer) const {
    const Pane* pane = this;
    while (pane != nullptr && pane != &outer)
        pane = pane->parent_;
    return pane != nullptr;
}

Pane& Pane::outermost() {
    Pane* pane = this;
    while (pane->parent_ != nullptr)
        pane = pane->parent_;
    return *pane;
}

const Pane& Pane::keyWindow() const {
    const Pane* pane = this;
    while (!pane->takesKeys_ && pane->parent_ != nullptr)
        pane = pane->parent_;
    return *pane;
}

bool Pane::takesInput() const {
    return visible_ && enabled_ && (parent_ == nullptr || parent_->takesInput());
}

} // namespace lumtex::worlds
