/// What drags, arrows and presses in the trough do to a bar.
#include "bars/scroll_bar.h"
#include "values/rounding.h"

#include <algorithm>

namespace lumtex::bars {

namespace {

/// So far may the pointer stray across the bar while the thumb still follows it; pixels.
constexpr Single stray = 130;

} // namespace

void ScrollBar::thumbMouseDown(Integer Button, Single X, Single Y) {
    MoveScroll(Move::mousedown, Button, axis_.along(X, Y));
}

void ScrollBar::thumbMouseMove(Integer Button, Single X, Single Y) {
    const Single across = axis_.across(X, Y);
    if (across > -stray && across < axis_.breadth(thumb_.window()) + stray)
        MoveScroll(Move::mousemove, Button, axis_.along(X, Y));
}

void ScrollBar::thumbMouseUp() {
    Procedure p = procedure(u"MouseUp");
    MoveScroll(Move::mouseup, noButton, 0);
    ÜberprüfeValue();
    p.step([&] { events_.change(); });
}

/// `position` is in pixels of the thumb. The thumb moves under the pointer, so that the anchor stays.
void ScrollBar::MoveScroll(Move action, Integer button, Single position) {
    Procedure p = procedure(u"MoveScroll");
    if (action == Move::mousedown) {
        dragging_ = true;
        p.step([&] { dragAnchor_ = roundToLong(position); });
        return;
    }
    if (action == Move::mouseup) {
        dragging_ = false;
        return;
    }
    if (!dragging_ || button != leftButton)
        return;
    p.step([&] {
        Window& thumb = thumb_.window();
        const Single delta = static_cast<Single>(dragAnchor_) - position;
        const Single moved = axis_.start(thumb) - delta;
        const Single furthest = axis_.start(high_.window()) - axis_.length(thumb);
        axis_.placeStart(
            thumb, delta <= 0 ? std::min(moved, furthest) : std::max(moved, axis_.length(low_.window())));
    });
    if (activeScrolling_)
        ÜberprüfeValue();
}

/// Takes the value from the place of the thumb.
void ScrollBar::ÜberprüfeValue() {
    Procedure p = procedure(u"ÜberprüfeValue");
    IMX_ = GetIMX();
    Long value = p.value<Long>([&] {
        const Single travelled = axis_.start(thumb_.window()) - axis_.length(low_.window());
        return roundToLong(static_cast<Double>(travelled) / IMX_ + min_);
    });
    if (value > max_)
        value = max_;
    if (value < min_)
        value = min_;
    const bool moved = value != value_;
    letValue(value);
    if (moved)
        p.step([&] { events_.scroll(); });
}

// Wanted: an arrow raises Change at the end of the range too, when nothing has moved.

void ScrollBar::stepHigh() {
    Procedure p = procedure(traits_.highStep);
    if (traits_.jumpsLines)
        p.step([&] { letValue(roundToLong(std::min<Double>(1.0 * value_ + jumpLines_, max_))); });
    else if (value_ < max_)
        letValue(value_ + 1);
    p.step([&] { events_.change(); });
}

void ScrollBar::stepLow() {
    Procedure p = procedure(traits_.lowStep);
    if (traits_.jumpsLines)
        p.step([&] { letValue(roundToLong(std::max<Double>(1.0 * value_ - jumpLines_, min_))); });
    else if (value_ > min_)
        letValue(value_ - 1);
    p.step([&] { events_.change(); });
}

void ScrollBar::drag(Long value) {
    Procedure p = procedure(u"Drag");
    value = std::max(std::min(value, max_), min_);
    const bool moved = value != value_;
    letValue(value);
    if (moved)
        p.step([&] { events_.scroll(); });
    p.step([&] { events_.change(); });
}

void ScrollBar::press(ArrowButton& button, Single position, Long direction) {
    button.UC_MDown();
    pressPos_ = position;
    pressActive_ = true;
    pressDir_ = direction;
}

void ScrollBar::UserControl_MouseDown(Integer /*Button*/, Integer /*Shift*/, Single X, Single Y) {
    Procedure p = procedure(u"UserControl_MouseDown");
    const Single position = axis_.along(X, Y);
    if (position > axis_.end(thumb_.window()))
        press(high_, position, traits_.pressHigh);
    // Wanted: the thumb's place is read anew, so that a step past the pointer begins one back as well.
    if (axis_.start(thumb_.window()) > position)
        press(low_, position, traits_.pressLow);
    Redraw();
}

void ScrollBar::UserControl_MouseUp(Integer /*Button*/, Integer /*Shift*/, Single /*X*/, Single /*Y*/) {
    Procedure p = procedure(u"UserControl_MouseUp");
    low_.UC_MUp();
    high_.UC_MUp();
    pressActive_ = false;
    pressDir_ = 0;
    Redraw();
}

} // namespace lumtex::bars
