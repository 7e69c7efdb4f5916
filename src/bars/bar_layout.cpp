/// Where the parts of a bar lie, and how its trough is painted.
#include "bars/scroll_bar.h"
#include "drawing/gradient.h"
#include "guards/failure_of.h"
#include "records/enumerations.h"
#include "values/rounding.h"

namespace lumtex::bars {

namespace {

constexpr Single shortestThumb = 8; // pixels
constexpr Single roomForThumb = 12; // pixels between the buttons
constexpr OLE_COLOR troughDark = 0xECF1F3;
constexpr OLE_COLOR troughHeld = 0xD3DEE3; // between the thumb and a held press
constexpr OLE_COLOR troughLight = 0xFBFEFE;

} // namespace

/// Breadth, high button, and the thumb across the bar. Ends at the first failure.
void ScrollBar::layOut() {
    ignoringErrors([&] {
        axis_.placeBreadth(*window_, axis_.breadth(low_.window()));
        axis_.placeStart(high_.window(), axis_.length(*window_) - axis_.length(high_.window()));
        constexpr Single edge = 1;
        axis_.placeAcross(thumb_.window(), edge, axis_.breadth(*window_) - edge);
    });
}

void ScrollBar::UserControl_Resize() {
    Procedure p = procedure(u"UserControl_Resize");
    layOut();
    // Wanted: the length alone decides, so that a disabled thumb can come back.
    ignoringErrors([&] {
        const Single room =
            axis_.length(*window_) - axis_.length(high_.window()) - axis_.length(low_.window());
        thumb_.window().letVisible(room >= roomForThumb);
    });
    Redraw();
}

void ScrollBar::UserControl_Show() {
    ÜberprüfeHeight();
}

// Wanted: one pixel less for each unit of `Max`, whatever `Min` and the length of the page.
void ScrollBar::ÜberprüfeHeight() {
    Procedure p = procedure(traits_.thumbSize);
    thumbLength_ = axis_.length(*window_) - static_cast<Single>(max_) - axis_.length(low_.window()) -
                   axis_.length(high_.window());
    p.step([&] {
        axis_.placeLength(thumb_.window(), thumbLength_ <= shortestThumb ? shortestThumb : thumbLength_);
    });
}

Double ScrollBar::GetIMX() const {
    const Single track = axis_.length(*window_) - axis_.length(low_.window()) - axis_.length(high_.window()) -
                         axis_.length(thumb_.window());
    const Double range = static_cast<Double>(max_) - min_;
    const Double perUnit = static_cast<Double>(track) / (range != 0 ? range : 1);
    return perUnit == 0 ? 1 : perUnit;
}

bool ScrollBar::thumbReachedPress() const {
    const Window& thumb = thumb_.window();
    return (pressDir_ == traits_.pressLow && axis_.start(thumb) <= pressPos_) ||
           (pressDir_ == traits_.pressHigh && axis_.end(thumb) >= pressPos_);
}

void ScrollBar::placeThumb(Procedure& p) {
    IMX_ = GetIMX();
    const Single lowLength = axis_.length(low_.window());
    p.step([&] {
        Single start = 0;
        if (value_ == min_) {
            start = lowLength + axis_.start(low_.window());
        } else if (value_ == max_) {
            start = axis_.start(high_.window()) - axis_.length(thumb_.window());
        } else {
            const Double units = static_cast<Double>(value_) - min_;
            start = static_cast<Single>(static_cast<Double>(lowLength) + units * IMX_);
        }
        axis_.placeStart(thumb_.window(), start);
    });
}

void ScrollBar::paintTrough() {
    Surface& surface = window_->surface();
    if (colorStyle_ == cScrollCustom) {
        surface.letBackColor(backColor_);
        return;
    }
    if (!gradient_ || !enabled_) {
        surface.letBackColor(white);
        return;
    }
    Rect area{0, 0, surface.scaleWidth(), surface.scaleHeight()};
    drawing::DrawGradient(surface, &area, troughDark, troughLight, traits_.trough);
    if (!pressActive_ || thumbReachedPress())
        return;
    const bool low = pressDir_ == traits_.pressLow;
    const Long first = roundToLong(low ? axis_.end(low_.window()) : axis_.end(thumb_.window()));
    const Long last = roundToLong(low ? axis_.start(thumb_.window()) : axis_.length(*window_));
    if (traits_.axis == Axis::vertical) {
        area.Top = first;
        area.Bottom = last;
    } else {
        area.Left = first;
        area.Right = last;
    }
    drawing::DrawGradient(surface, &area, troughHeld, troughLight, traits_.trough);
}

void ScrollBar::Redraw() {
    Procedure p = procedure(u"Redraw");
    p.step([&] { window_->surface().Cls(); });
    // The thumb has come to the pointer: the held press ends there, and paints once on its own.
    if (pressActive_ && thumbReachedPress())
        UserControl_MouseUp(leftButton, 0, 0, 0);
    if (!dragging_)
        placeThumb(p);
    p.step([&] { paintTrough(); });
    p.step([&] { window_->present(); });
}

} // namespace lumtex::bars
