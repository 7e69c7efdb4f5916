#include "worlds/qt/screen_widget.h"

#include "worlds/common/composed_picture.h"
#include "worlds/qt/qt_world.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPointer>
#include <algorithm>
#include <cmath>
#include <utility>

namespace lumtex::qt {

namespace {

/// Posted to itself once something was touched.
QEvent::Type updateEvent() {
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

bool isEmpty(const Rect& rect) {
    return rect.Left >= rect.Right || rect.Top >= rect.Bottom;
}

Rect around(const Rect& a, const Rect& b) {
    if (isEmpty(a))
        return b;
    return {std::min(a.Left, b.Left),
            std::min(a.Top, b.Top),
            std::max(a.Right, b.Right),
            std::max(a.Bottom, b.Bottom)};
}

/// Brings `part` of `shown` to what it is in `next`; tells where they differed.
Rect takeOver(Bitmap& shown, const Bitmap& next, const Rect& part) {
    Rect changed;
    for (Long y = part.Top; y < part.Bottom; ++y) {
        const auto start = static_cast<std::ptrdiff_t>(y) * shown.width;
        const auto first = shown.pixels.begin() + start + part.Left;
        const auto last = shown.pixels.begin() + start + part.Right;
        const auto source = next.pixels.begin() + start + part.Left;
        const auto from = std::mismatch(first, last, source).first;
        if (from == last)
            continue;
        auto to = last;
        while (*(to - 1) == *(source + (to - 1 - first)))
            --to;
        const Long left = part.Left + static_cast<Long>(from - first);
        const Long right = part.Left + static_cast<Long>(to - first);
        std::copy(source + (from - first), source + (to - first), from);
        changed = around(changed, {left, y, right, y + 1});
    }
    return changed;
}

} // namespace

ScreenWidget::ScreenWidget(QtWorld& world, WindowHandle window, QWidget* container)
    : QWidget(container), world_(&world), window_(window) {
    // A press gives the focus by the rules of the world, not by those of widgets.
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_InputMethodEnabled);
}

ScreenWidget::~ScreenWidget() {
    sendGuestsHome();
    if (world_ != nullptr)
        world_->formMayBeClosed();
}

void ScreenWidget::loseWindow() {
    world_ = nullptr;
    window_ = 0;
    const QPointer<ScreenWidget> self(this);
    hide();
    if (self != nullptr)
        sendGuestsHome();
}

void ScreenWidget::touch(const Rect& part) {
    if (isEmpty(part))
        return;
    touched_ = around(touched_, part);
    if (!updateWaits_)
        QCoreApplication::postEvent(this, new QEvent(updateEvent()));
    updateWaits_ = true;
}

void ScreenWidget::bringUpToDate() {
    const worlds::Pane* pane = world_ != nullptr ? world_->tree().find(window_) : nullptr;
    if (pane == nullptr)
        return;
    clipGuests();
    const Long width = pane->area().Right - pane->area().Left;
    const Long height = pane->area().Bottom - pane->area().Top;
    const bool resized = width != shown_.width || height != shown_.height;
    if (resized) {
        shown_ = Bitmap(width, height);
        next_ = Bitmap(width, height);
    }
    const Rect all{0, 0, width, height};
    Rect part = resized ? all : std::exchange(touched_, {});
    part = {std::max(part.Left, Long{0}),
            std::max(part.Top, Long{0}),
            std::min(part.Right, width),
            std::min(part.Bottom, height)};
    touched_ = {};
    if (isEmpty(part))
        return;
    worlds::composePicture(next_, *pane, part, worlds::Boxes::leftOut);
    const Rect changed = takeOver(shown_, next_, part);
    if (isEmpty(changed))
        return;
    pixelsChanged_ += std::int64_t{changed.Right - changed.Left} * (changed.Bottom - changed.Top);
    update(unitsOf(changed));
}

void ScreenWidget::paintEvent(QPaintEvent* /*event*/) {
    bringUpToDate();
    if (world_ == nullptr || shown_.pixels.empty())
        return;
    QImage image(reinterpret_cast<const uchar*>(shown_.pixels.data()),
                 shown_.width,
                 shown_.height,
                 static_cast<qsizetype>(shown_.width) * static_cast<qsizetype>(sizeof(std::uint32_t)),
                 QImage::Format_RGB32);
    image.setDevicePixelRatio(world_->ratio());
    QPainter painter(this);
    painter.drawImage(0, 0, image);
}

bool ScreenWidget::event(QEvent* event) {
    if (event->type() == updateEvent()) {
        updateWaits_ = false;
        bringUpToDate();
        return true;
    }
    if (world_ == nullptr)
        return QWidget::event(event);
    const QPointer<ScreenWidget> self(this);
    const bool taken = world_->input(*this, *event);
    return taken || self == nullptr || QWidget::event(event);
}

} // namespace lumtex::qt
