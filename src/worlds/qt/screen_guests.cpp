/// Widgets of the program that lie in a window, over their cells.
#include "worlds/qt/qt_world.h"
#include "worlds/qt/screen_widget.h"

#include <QRegion>
#include <cmath>
#include <utility>

namespace lumtex::qt {

namespace {

/// The place of a pane in pixels of its outermost one.
Rect placeOf(worlds::Pane& pane) {
    const Point corner = pane.origin();
    const Point outer = pane.outermost().origin();
    const Long left = corner.x - outer.x;
    const Long top = corner.y - outer.y;
    return {
        left, top, left + pane.area().Right - pane.area().Left, top + pane.area().Bottom - pane.area().Top};
}

} // namespace

QRect ScreenWidget::unitsOf(const Rect& pixels) const {
    const Double ratio = world_->ratio();
    const QPoint first(static_cast<int>(std::floor(pixels.Left / ratio)),
                       static_cast<int>(std::floor(pixels.Top / ratio)));
    const QPoint end(static_cast<int>(std::ceil(pixels.Right / ratio)),
                     static_cast<int>(std::ceil(pixels.Bottom / ratio)));
    return {first, QSize(end.x() - first.x(), end.y() - first.y())};
}

void ScreenWidget::takeIn(QWidget& guest, WindowHandle window) {
    for (Guest& known : guests_) {
        if (known.widget == &guest) {
            known.window = window;
            return;
        }
    }
    guests_.push_back({&guest, guest.parentWidget(), window});
    const QPointer<ScreenWidget> self(this);
    const QPointer<QWidget> watched(&guest);
    // Not shown yet: the pass that paints its cell does that.
    guest.setParent(this);
    if (self != nullptr && watched != nullptr)
        watched->lower();
}

std::vector<QWidget*> ScreenWidget::guests() const {
    std::vector<QWidget*> there;
    for (const Guest& guest : guests_)
        if (guest.widget != nullptr && guest.widget->parentWidget() == this)
            there.push_back(guest.widget);
    return there;
}

QPoint ScreenWidget::originOfGuest(const QWidget& guest) const {
    for (const Guest& known : guests_) {
        worlds::Pane* pane = world_ != nullptr ? world_->tree().find(known.window) : nullptr;
        if (known.widget == &guest && pane != nullptr)
            return unitsOf(placeOf(*pane)).topLeft();
    }
    return {};
}

void ScreenWidget::clip(QWidget& guest, WindowHandle window) const {
    worlds::Pane* pane = world_->tree().find(window);
    if (pane == nullptr)
        return;
    QRegion shown(unitsOf(placeOf(*pane)));
    for (worlds::Pane* above : pane->children())
        if (above->isVisible() && !above->isBox())
            shown -= unitsOf(placeOf(*above));
    shown = shown.translated(-guest.pos()).intersected(guest.rect());
    if (shown == QRegion(guest.rect()))
        guest.clearMask();
    else
        // An empty region would be none at all.
        guest.setMask(shown.isEmpty() ? QRegion(-1, -1, 1, 1) : shown);
}

void ScreenWidget::clipGuests() {
    std::erase_if(guests_, [this](const Guest& guest) {
        return guest.widget == nullptr || guest.widget->parentWidget() != this;
    });
    const QPointer<ScreenWidget> self(this);
    const std::vector<Guest> guests = guests_;
    for (const Guest& guest : guests) {
        // The events of a guest may end everything.
        if (self == nullptr || world_ == nullptr)
            return;
        if (guest.widget != nullptr)
            clip(*guest.widget, guest.window);
    }
}

void ScreenWidget::sendGuestsHome() {
    const std::vector<Guest> guests = std::exchange(guests_, {});
    for (const Guest& guest : guests) {
        if (guest.widget == nullptr || guest.widget->parentWidget() != this)
            continue;
        guest.widget->hide();
        // One whose home is gone, or that had none, goes with its new parent.
        if (guest.widget != nullptr && guest.home != nullptr) {
            guest.widget->clearMask();
            guest.widget->setParent(guest.home);
        }
    }
}

} // namespace lumtex::qt
