#include "worlds/common/pointer.h"

#include <new>
#include <optional>
#include <utility>

namespace lumtex::worlds {

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

class Pointer::Target final : public ClickSequence::Target {
  public:
    Target(Pointer& pointer, const Pane& pane) : pointer_(pointer), handle_(pane.handle()) {}

    WindowHandle handle() const override { return handle_; }
    void capture() override { pointer_.captured_ = handle_; }
    bool ownBoxHasKeys() const override {
        const Pane* held = pointer_.focus_.holder();
        return held != nullptr && held->parent() == &pane()->keyWindow() && held->isBox();
    }
    void takeKeys() override { pointer_.focus_.moveTo(pane()->keyWindow()); }

    bool isThere() const override { return pane() != nullptr; }
    bool takesInput() const override { return isThere() && pane()->takesInput(); }
    bool covers(Point at) const override { return isThere() && pane()->covers(at); }

    void mouseDown(const Event& event) override {
        pane()->mouseDown(event.button, event.shift, pane()->fromDesktop(event.at));
    }
    void doubleClick(const Event& event) override { pane()->doubleClick(pane()->fromDesktop(event.at)); }
    void mouseUp(const Event& event) override {
        pane()->mouseUp(event.button, event.shift, pane()->fromDesktop(event.at));
    }
    void click() override { pane()->click(); }

  private:
    Pane* pane() const { return pointer_.tree_.find(handle_); }

    Pointer& pointer_;
    WindowHandle handle_;
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

void Pointer::deliverPress(const Event& event) {
    const Delivery delivery(*this, event);
    const Pane* pane = targetOf(event);
    std::optional<Target> target;
    press_.press(pane != nullptr ? &target.emplace(*this, *pane) : nullptr, event);
}

void Pointer::deliverDoublePress(const Event& event) {
    const Delivery delivery(*this, event);
    const Pane* pane = targetOf(event);
    std::optional<Target> target;
    press_.pressAgain(pane != nullptr ? &target.emplace(*this, *pane) : nullptr, event);
}

void Pointer::deliverRelease(const Event& event) {
    const Delivery delivery(*this, event);
    const Pane* pane = targetOf(event);
    std::optional<Target> target;
    press_.release(
        pane != nullptr ? &target.emplace(*this, *pane) : nullptr, event, [this] { endCapture(); });
}

bool Pointer::deliverWheel(const Event& event, Long rotation) {
    const Delivery delivery(*this, event);
    for (Pane* target = tree_.at(event.at); target != nullptr;) {
        const WindowHandle outer = target->parent() != nullptr ? target->parent()->handle() : 0;
        if (target->wheel(rotation, event.shift, target->fromDesktop(event.at)))
            return true;
        target = tree_.find(outer);
    }
    return false;
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
    const Pane* pressed = tree_.find(press_.window());
    if (pressed != nullptr && pressed->isWithin(pane))
        press_.forget();
}

} // namespace lumtex::worlds
