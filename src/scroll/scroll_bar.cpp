#include "scroll/scroll_bar.h"

#include "platform/property_bag.h"
#include "render/gradient.h"
#include "services/ignoring_errors.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace lumtex {

namespace {

constexpr Single buttonLength = 17; // pixels
constexpr Single shortestThumb = 8; // pixels
constexpr Long customStyle = 99;
constexpr OLE_COLOR troughDark = 0xECF1F3;
constexpr OLE_COLOR troughLight = 0xFBFEFE;

/// By style; 0xBBGGRR.
using Scheme = ScrollBar::Scheme;
constexpr Scheme schemes[] = {
    {0xFDD5C2, 0xE6B49C, 0x85614D}, // blue
    {0xEFE9E6, 0xC3B5B0, 0x6B5B57}, // silver
    {0xB7D9C3, 0x8CB89C, 0x4A6B52}, // olive
};
constexpr Scheme disabledScheme{0xF3F8F8, 0xD2DADA, 0xC2CACA};

} // namespace

ScrollBar::ScrollBar(World& world, Window& parent, Axis axis, Events events)
    : world_(world), axis_(axis), events_(std::move(events)), window_(world.createWindow(&parent, *this)) {
    window_->place(0, 0, buttonLength, buttonLength);
}

void ScrollBar::letMin(Long value) {
    if (value > max_) {
        world_.runtime().messageBox(u"Min darf nicht größer sein als Max!", boxCritical, {});
        return;
    }
    min_ = value;
    Redraw();
}

void ScrollBar::letMax(Long value) {
    if (value < min_) {
        world_.runtime().messageBox(u"Max darf nicht kleiner sein als Min!", boxCritical, {});
        return;
    }
    max_ = value;
    Redraw();
}

void ScrollBar::letValue(Long value) {
    value_ = value;
    Redraw();
}

void ScrollBar::letColorStyle(Long style) {
    colorStyle_ = style;
    Redraw();
}

void ScrollBar::letEnabled(bool enabled) {
    enabled_ = enabled;
    window_->letEnabled(enabled);
    Redraw();
}

void ScrollBar::SetNewProperty(const PropertyBag& bag) {
    backColor_ = bag.ReadProperty(u"ScrollBackColor", white).toColor();
    Redraw();
}

void ScrollBar::UserControl_Resize() {
    Redraw();
}

/// Along the bar: where the thumb begins and how long it is.
ScrollBar::Span ScrollBar::thumb() const {
    const Single length = axis_ == Axis::vertical ? Height() : Width();
    const Single free = length - 2 * buttonLength;
    const Single thumbLength = std::max(shortestThumb, free - static_cast<Single>(max_));
    const Single travel = free - thumbLength;
    Single start = buttonLength;
    if (value_ != min_ && value_ == max_)
        start = length - buttonLength - thumbLength;
    else if (value_ != min_)
        start += travel * static_cast<Single>((1.0 * value_ - min_) / (1.0 * max_ - min_));
    return {start, thumbLength};
}

void ScrollBar::box(Span along, const Scheme& scheme) {
    Surface& surface = window_->surface();
    const Single breadth = (axis_ == Axis::vertical ? Width() : Height()) - 1;
    const Single end = along.start + along.length - 1;
    if (axis_ == Axis::vertical) {
        surface.fillBox(1, along.start, breadth - 1, end, scheme.face);
        surface.box(1, along.start, breadth - 1, end, scheme.frame);
    } else {
        surface.fillBox(along.start, 1, end, breadth - 1, scheme.face);
        surface.box(along.start, 1, end, breadth - 1, scheme.frame);
    }
}

void ScrollBar::arrow(Span button, bool towardsEnd, const Scheme& scheme) {
    constexpr Single depth = 4; // rows of the triangle, each two pixels shorter than the one before
    Surface& surface = window_->surface();
    const Single middle = std::floor((axis_ == Axis::vertical ? Width() : Height()) / 2);
    const Single first = button.start + std::floor(buttonLength / 2) - 2;
    for (Single row = 0; row < depth; row += 1) {
        const Single along = first + (towardsEnd ? row : depth - 1 - row);
        const Single reach = depth - 1 - row;
        if (axis_ == Axis::vertical)
            surface.line(middle - reach, along, middle + reach + 1, along, scheme.arrow);
        else
            surface.line(along, middle - reach, along, middle + reach + 1, scheme.arrow);
    }
}

void ScrollBar::Redraw() {
    Surface& surface = window_->surface();
    ignoringErrors([&] {
        surface.Cls();
        if (colorStyle_ == customStyle) {
            surface.letBackColor(backColor_);
        } else if (!enabled_) {
            surface.letBackColor(white);
        } else {
            const Rect all{0, 0, surface.scaleWidth(), surface.scaleHeight()};
            DrawGradient(
                surface, &all, troughDark, troughLight, axis_ == Axis::vertical ? leftToRight : bottomToTop);
        }
        const bool known = colorStyle_ >= 0 && colorStyle_ < static_cast<Long>(std::size(schemes));
        const Scheme& scheme = !enabled_ ? disabledScheme : schemes[known ? colorStyle_ : 1];
        const Single length = axis_ == Axis::vertical ? Height() : Width();
        const Span low{0, buttonLength};
        const Span high{length - buttonLength, buttonLength};
        if (enabled_)
            box(thumb(), scheme);
        box(low, scheme);
        arrow(low, false, scheme);
        box(high, scheme);
        arrow(high, true, scheme);
    });
    window_->present();
}

} // namespace lumtex
