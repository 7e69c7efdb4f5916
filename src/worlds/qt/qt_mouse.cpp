/// Moves, presses and releases of the mouse, and of what Qt makes mouse events of.
#include "worlds/qt/key_codes.h"
#include "worlds/qt/mouse_buttons.h"
#include "worlds/qt/qt_timer.h"
#include "worlds/qt/qt_world.h"

#include <QInputDevice>
#include <algorithm>
#include <memory>

namespace lumtex::qt {

namespace {

/// By a finger or a pen, or by somebody who makes such events.
bool isMadeUp(const QMouseEvent& event) {
    return event.source() != Qt::MouseEventNotSynthesized ||
           event.deviceType() == QInputDevice::DeviceType::TouchScreen ||
           event.deviceType() == QInputDevice::DeviceType::Stylus;
}

Integer othersOf(const QMouseEvent& event) {
    return static_cast<Integer>(buttonsOf(event.buttons()) & ~buttonOf(event.button()));
}

} // namespace

std::vector<QtTimer*> QtWorld::quickTimers() const {
    std::vector<QtTimer*> quick;
    std::ranges::copy_if(timers_, std::back_inserter(quick), [](const QtTimer* timer) {
        return timer->runs() && timer->Interval() <= worlds::EarlyPresses::handsGap;
    });
    return quick;
}

worlds::EarlyPresses::Noticed QtWorld::noticed() const {
    using enum worlds::EarlyPresses::Noticed;
    const std::vector<QtTimer*> quick = quickTimers();
    return quick.empty() ? nothing : std::ranges::all_of(quick, &QtTimer::hasTicked) ? already : soon;
}

void QtWorld::tickQuickTimers() {
    for (QtTimer* const timer : quickTimers())
        // A tick before may have ended it.
        if (std::ranges::find(timers_, timer) != timers_.end() && timer->runs() && !timer->hasTicked())
            timer->tick();
}

void QtWorld::tellPress(Point at, const QMouseEvent& event) {
    const Integer shift = shiftOf(event.modifiers());
    pointer_.moveTo(at, shift);
    pointer_.letButtons(othersOf(event));
    const worlds::Pointer::Event told = pointer_.press(buttonOf(event.button()), shift);
    if (event.type() == QEvent::MouseButtonPress)
        pointer_.deliverPress(told);
    else
        pointer_.deliverDoublePress(told);
    showPointer();
}

void QtWorld::tellRelease(Point at, const QMouseEvent& event) {
    const Integer shift = shiftOf(event.modifiers());
    const MouseButton button = buttonOf(event.button());
    pointer_.moveTo(at, shift);
    pointer_.letButtons(static_cast<Integer>(othersOf(event) | button));
    pointer_.deliverRelease(pointer_.release(button, shift));
    showPointer();
}

void QtWorld::mouseEvent(Point at, const QMouseEvent& event, WindowHandle window) {
    // What waits outlives the event.
    const std::shared_ptr<QMouseEvent> kept(event.clone());
    pointer_.moveTo(at, shiftOf(event.modifiers()));
    if (event.type() == QEvent::MouseMove) {
        presses_.move(window, [this, at, kept] {
            pointer_.letButtons(buttonsOf(kept->buttons()));
            pointer_.deliverMove(pointer_.moveTo(at, shiftOf(kept->modifiers())));
            showPointer();
        });
        moveIsFresh_ = true;
        QMetaObject::invokeMethod(
            &context_, [this] { moveIsFresh_ = false; }, Qt::QueuedConnection);
        return;
    }
    if (buttonOf(event.button()) == noButton)
        return;
    const bool isRelease = event.type() == QEvent::MouseButtonRelease;
    const auto tell = [this, at, kept, isRelease] {
        if (isRelease)
            tellRelease(at, *kept);
        else
            tellPress(at, *kept);
    };
    if (window == 0)
        tell();
    else if (isRelease)
        presses_.other(window, tell);
    else
        presses_.press(window,
                       moveIsFresh_ || isMadeUp(event) || noticed() == worlds::EarlyPresses::Noticed::soon,
                       tell);
}

} // namespace lumtex::qt
