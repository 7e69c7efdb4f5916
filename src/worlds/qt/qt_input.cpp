/// Mouse, keys, wheel and tips, as widgets hear of them.
#include "worlds/qt/key_codes.h"
#include "worlds/qt/qt_text.h"
#include "worlds/qt/qt_text_box.h"
#include "worlds/qt/qt_window.h"
#include "worlds/qt/qt_world.h"

#include <QGuiApplication>
#include <QHelpEvent>
#include <QInputDevice>
#include <QInputMethodEvent>
#include <QToolTip>
#include <cmath>

namespace lumtex::qt {

namespace {

constexpr Long notch = 120;

bool isFocusKey(const QKeyEvent& event) {
    return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
}

/// A finger that glides tells a notch in many small pieces, which count once they are one. A wheel, however
/// fine, says what it means.
bool isGliding(const QWheelEvent& event) {
    return event.phase() != Qt::NoScrollPhase || !event.pixelDelta().isNull() ||
           event.deviceType() == QInputDevice::DeviceType::TouchPad;
}

/// A dialog around the list closes by these, once the list has heard of them.
bool isForDialogs(const QKeyEvent& event) {
    return event.key() == Qt::Key_Escape || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

bool QtWorld::input(ScreenWidget& screen, QEvent& event) noexcept {
    const Delivery delivery(*this);
    try {
        return deliver(screen, event);
    } catch (...) {
        // The border of the platform: no failure passes, and what can fail has reported it already.
        return true;
    }
}

void QtWorld::mouseOver(const QWidget& field, const worlds::Pane& pane, QEvent& event) noexcept {
    const Delivery delivery(*this);
    try {
        const auto& mouse = static_cast<const QMouseEvent&>(event);
        mouseEvent(onDesktop(field, pane, mouse.position()), mouse, 0);
    } catch (...) {
        return;
    }
}

bool QtWorld::deliver(ScreenWidget& screen, QEvent& event) {
    worlds::Pane* pane = tree_.find(screen.shownWindow());
    if (pane == nullptr)
        return false;
    switch (event.type()) {
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease: {
        const auto& mouse = static_cast<QMouseEvent&>(event);
        mouseEvent(onDesktop(screen, *pane, mouse.position()), mouse, pane->handle());
        return true;
    }
    case QEvent::Wheel: {
        const auto& wheel = static_cast<QWheelEvent&>(event);
        const bool taken = wheelEvent(onDesktop(screen, *pane, wheel.position()), wheel);
        event.setAccepted(taken);
        return true;
    }
    case QEvent::Leave:
        pointerLeft(screen, *pane);
        return false;
    case QEvent::KeyPress: {
        const auto& key = static_cast<QKeyEvent&>(event);
        // What a widget over a cell leaves is for those around the list.
        if (isFocusKey(key) || !screen.hasFocus())
            return false;
        event.setAccepted(!isForDialogs(key));
        keyPressed(key);
        return true;
    }
    case QEvent::KeyRelease: {
        const auto& key = static_cast<QKeyEvent&>(event);
        if (!screen.hasFocus())
            return false;
        event.setAccepted(!isForDialogs(key));
        keyReleased(key);
        return true;
    }
    case QEvent::InputMethod:
        enter(fromQString(static_cast<QInputMethodEvent&>(event).commitString()));
        return true;
    case QEvent::Close:
        // By the user. The widget hides by itself, its window has to hear of it.
        if (auto* window = dynamic_cast<QtWindow*>(pane))
            window->letVisible(false);
        return false;
    case QEvent::Show:
    case QEvent::ScreenChangeInternal:
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    case QEvent::DevicePixelRatioChange:
#endif
        lookAtDensity();
        return false;
    case QEvent::FocusIn:
        focusCame(*pane);
        return false;
    case QEvent::FocusOut:
        if (static_cast<QFocusEvent&>(event).reason() != Qt::PopupFocusReason)
            focusWent();
        return false;
    case QEvent::DragEnter:
    case QEvent::DragMove: {
        auto& drag = static_cast<QDropEvent&>(event);
        drops_.over(onDesktop(screen, *pane, drag.position()), drag);
        return true;
    }
    case QEvent::DragLeave:
        drops_.leave();
        return true;
    case QEvent::Drop: {
        auto& drop = static_cast<QDropEvent&>(event);
        drops_.drop(onDesktop(screen, *pane, drop.position()), drop);
        return true;
    }
    case QEvent::ToolTip: {
        const auto& help = static_cast<QHelpEvent&>(event);
        return showTip(onDesktop(screen, *pane, help.pos()), help.globalPos());
    }
    default:
        return false;
    }
}

/// Also notes where the window is now: its widget moves with the widgets around it.
Point QtWorld::onDesktop(const QWidget& widget, const worlds::Pane& pane, QPointF at) const {
    worlds::Pane& outer = paneOf(pane.handle()).outermost();
    const QPointF corner = widget.mapToGlobal(QPointF(0, 0)) * ratio_;
    const Point old = pane.origin();
    const Point base = outer.base();
    outer.letBase({base.x + static_cast<Long>(std::floor(corner.x())) - old.x,
                   base.y + static_cast<Long>(std::floor(corner.y())) - old.y});
    const Point origin = pane.origin();
    return {origin.x + static_cast<Long>(std::floor(at.x() * ratio_)),
            origin.y + static_cast<Long>(std::floor(at.y() * ratio_))};
}

bool QtWorld::wheelEvent(Point at, const QWheelEvent& event) {
    const QPoint turned = event.angleDelta();
    // With Alt, some platforms turn the wheel sideways.
    const bool sideways = turned.y() == 0 && event.modifiers().testFlag(Qt::AltModifier);
    Long rotation = sideways ? turned.x() : turned.y();
    if (isGliding(event)) {
        wheelRest_ += rotation;
        rotation = wheelRest_ - wheelRest_ % notch;
        wheelRest_ -= rotation;
    }
    if (rotation == 0)
        return wheelRest_ != 0;
    const Integer shift = shiftOf(event.modifiers());
    pointer_.moveTo(at, shift);
    return pointer_.deliverWheel(pointer_.turnWheel(shift), rotation);
}

void QtWorld::pointerLeft(const ScreenWidget& screen, const worlds::Pane& pane) {
    const QPoint at = screen.mapFromGlobal(QCursor::pos());
    // Some platforms do not tell where the pointer is once it is outside.
    const QPoint outside = screen.rect().contains(at) ? QPoint(-1, -1) : at;
    const worlds::Pointer::Event event =
        pointer_.moveTo(onDesktop(screen, pane, outside), shiftOf(QGuiApplication::keyboardModifiers()));
    // Qt walks on through the widgets that were left, which must not go meanwhile: so hosts hear of it behind
    // that.
    QMetaObject::invokeMethod(
        &context_,
        [this, event] {
            const Delivery delivery(*this);
            if (pointer_.captured() != 0)
                pointer_.deliverMove(event);
        },
        Qt::QueuedConnection);
}

worlds::Pane* QtWorld::keyTarget() const {
    worlds::Pane* pane = focus_.holder();
    return pane != nullptr && pane->takesInput() && !pane->isBox() ? pane : nullptr;
}

void QtWorld::keyPressed(const QKeyEvent& event) {
    const Integer code = keyCodeOf(event);
    const Integer shift = shiftOf(event);
    const String characters = charactersOf(event);
    // They wait already: a handler of the key that yields lets them through.
    for (const char16_t unit : characters)
        characters_.push_back(static_cast<Integer>(unit));
    if (!characters.empty())
        QMetaObject::invokeMethod(
            &context_,
            [this] {
                const Delivery delivery(*this);
                deliverCharacters();
            },
            Qt::QueuedConnection);
    worlds::Pane* pane = keyTarget();
    if (pane != nullptr && code != 0)
        pane->keyDown(code, shift);
    deliverCharacters();
}

void QtWorld::keyReleased(const QKeyEvent& event) {
    if (event.isAutoRepeat())
        return;
    const Integer code = keyCodeOf(event);
    worlds::Pane* pane = keyTarget();
    if (pane != nullptr && code != 0)
        pane->keyUp(code, shiftOf(event));
}

void QtWorld::enter(const String& characters) {
    for (const char16_t unit : characters)
        characters_.push_back(static_cast<Integer>(unit));
    deliverCharacters();
}

void QtWorld::deliverCharacters() {
    while (!characters_.empty()) {
        const Integer unit = characters_.front();
        characters_.pop_front();
        if (worlds::Pane* pane = keyTarget())
            pane->character(unit);
    }
}

bool QtWorld::showTip(Point at, QPoint onScreen) {
    for (const worlds::Pane* pane = tree_.at(at); pane != nullptr; pane = pane->parent()) {
        if (const std::optional<String> tip = tips_.tipOf(pane->handle()); tip && !tip->empty()) {
            QToolTip::showText(onScreen, toQString(*tip));
            return true;
        }
    }
    return false;
}

} // namespace lumtex::qt
