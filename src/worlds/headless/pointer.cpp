#include "worlds/headless/pointer.h"

#include "worlds/headless/headless_window.h"

#include <new>
#include <utility>

namespace lumtex {

class Pointer::Delivery {
  public:
    Delivery(Pointer& pointer, const Event& event)
        : shift_(pointer.shift_), outer_(std::exchange(pointer.shift_, event.shift)) {}
    Delivery(const Delivery&) = delete;
    Delivery& operator=(const Delivery&) = delete;
    ~Delivery() { shift_ = outer_; }

  private:
    Integer& shift_;
    Integer outer_;
};

Pointer::Event Pointer::moveTo(Point place, Integer shift) {
    place_ = place;
    return {place_, noButton, buttons_, shift};
}

Pointer::Event Pointer::press(MouseButton button, Integer shift) {
    buttons_ = static_cast<Integer>(buttons_ | button);
    pressedSince_ = static_cast<Integer>(pressedSince_ | button);
    return {place_, button, buttons_, shift};
}

Pointer::Event Pointer::release(MouseButton button, Integer shift) {
    buttons_ = static_cast<Integer>(buttons_ & ~button);
    return {place_, button, buttons_, shift};
}

Pointer::Event Pointer::turnWheel(Integer shift) const {
    return {place_, noButton, buttons_, shift};
}

bool Pointer::takePressed(Integer button) {
    const bool pressed = (pressedSince_ & button) != 0;
    pressedSince_ = static_cast<Integer>(pressedSince_ & ~button);
    return pressed;
}

Pane* Pointer::targetOf(const Event& event) const {
    return captured_ != 0 ? tree_.find(captured_) : tree_.at(event.at);
}

void Pointer::deliverMove(const Event& event) {
    const Delivery delivery(*this, event);
    if (Pane* target = targetOf(event))
        target->mouseMove(event.buttons, event.shift, target->fromDesktop(event.at));
}

void Pointer::deliverMadeUpMove(Event event) {
    moveMadeUp_ = false;
    event.at = place_;
    deliverMove(event);
}

void Pointer::endCapture() {
    if (std::exchange(captured_, 0) == 0 || !onMadeUpMove || moveMadeUp_)
        return;
    try {
        onMadeUpMove({place_, noButton, buttons_, shift_});
        moveMadeUp_ = true;
    } catch (const std::bad_alloc&) {
        // Windows that go end a capture too, and must not fail: the move is not made.
    }
}

Pane* Pointer::pressTarget(const Event& event) {
    Pane* target = targetOf(event);
    if (target == nullptr)
        return nullptr;
    const WindowHandle handle = target->handle();
    captured_ = handle;
    // A window does not take the focus away from its own text box: an open editor stays open until the window
    // has decided what to do with it. A host's control in it is not its own.
    const Pane& keyWindow = target->keyWindow();
    const Pane* held = focus_.holder();
    const bool isOwnBox = held != nullptr && held->parent() == &keyWindow &&
                          dynamic_cast<const HeadlessWindow*>(held) == nullptr;
    if (!isOwnBox)
        focus_.moveTo(keyWindow);
    target = tree_.find(handle);
    return target != nullptr && target->takesInput() ? target : nullptr;
}

void Pointer::deliverPress(const Event& event) {
    const Delivery delivery(*this, event);
    Pane* target = pressTarget(event);
    if (target == nullptr)
        return;
    pressed_ = target->handle();
    pressedButton_ = event.button;
    target->mouseDown(event.button, event.shift, target->fromDesktop(event.at));
}

void Pointer::deliverDoublePress(const Event& event) {
    const Delivery delivery(*this, event);
    pressed_ = 0;
    if (Pane* target = pressTarget(event))
        target->doubleClick(target->fromDesktop(event.at));
}

void Pointer::deliverRelease(const Event& event) {
    const Delivery delivery(*this, event);
    Pane* target = targetOf(event);
    const bool endsPress = event.button == pressedButton_;
    const WindowHandle pressed = endsPress ? std::exchange(pressed_, 0) : 0;
    if (event.buttons == noButton)
        endCapture();
    if (target == nullptr)
        return;
    const WindowHandle handle = target->handle();
    target->mouseUp(event.button, event.shift, target->fromDesktop(event.at));
    target = tree_.find(handle);
    if (target != nullptr && handle == pressed && target->takesInput() && target->covers(event.at))
        target->click();
}

void Pointer::deliverWheel(const Event& event, Long rotation) {
    const Delivery delivery(*this, event);
    for (Pane* target = tree_.at(event.at); target != nullptr;) {
        const WindowHandle outer = target->parent() != nullptr ? target->parent()->handle() : 0;
        if (target->wheel(rotation, event.shift, target->fromDesktop(event.at)))
            return;
        target = tree_.find(outer);
    }
}

void Pointer::capture(const Pane& pane) {
    if (pane.takesInput())
        captured_ = pane.handle();
}

void Pointer::releaseCapture(const Pane& pane) {
    if (captured_ == pane.handle())
        endCapture();
}

void Pointer::forget(const Pane& pane) {
    const Pane* captured = tree_.find(captured_);
    if (captured != nullptr && captured->isWithin(pane))
        endCapture();
    const Pane* pressed = tree_.find(pressed_);
    if (pressed != nullptr && pressed->isWithin(pane))
        pressed_ = 0;
}

} // namespace lumtex
