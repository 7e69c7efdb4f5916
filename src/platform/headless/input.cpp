/// Pointer and keyboard of the simulated desktop.
#include "platform/headless/desktop.h"
#include "platform/headless/headless_widgets.h"
#include "platform/rounding.h"

namespace lumtex {

namespace {

constexpr Integer lastControlCharacterKey = 31;

} // namespace

Point Desktop::onDesktop(const Window& window, Single x, Single y) const {
    const Point origin = static_cast<const HeadlessWindow&>(window).origin();
    return {origin.x + roundToLong(x), origin.y + roundToLong(y)};
}

HeadlessWindow* Desktop::mouseTarget() const {
    HeadlessWindow* target = capture_ != 0 ? find(capture_) : windowAt(pointer_);
    return target != nullptr && target->takesInput() ? target : nullptr;
}

void Desktop::deliverMouse(void (UserControl::*handler)(Integer, Integer, Single, Single),
                           HeadlessWindow& target,
                           Integer button,
                           Integer shift) {
    const Point at = target.pointer();
    (target.client().*handler)(button, shift, static_cast<Single>(at.x), static_cast<Single>(at.y));
}

void Desktop::deliverMove(Point to) {
    pointer_ = to;
    if (HeadlessWindow* target = mouseTarget())
        deliverMouse(&UserControl::UserControl_MouseMove, *target, heldButton_, 0);
}

void Desktop::deliverPress(MouseButton button, Integer shift, bool isDouble) {
    heldButton_ = static_cast<Integer>(heldButton_ | button);
    HeadlessWindow* target = mouseTarget();
    if (target == nullptr)
        return;
    // A window that was pressed gets all that follows, up to the release.
    if (capture_ == 0)
        capture_ = target->hWnd();
    pressed_ = target->hWnd();
    setFocus(pressed_);
    target = find(pressed_);
    if (target == nullptr)
        return;
    if (isDouble)
        target->client().UserControl_DblClick();
    else
        deliverMouse(&UserControl::UserControl_MouseDown, *target, button, shift);
}

void Desktop::deliverRelease(MouseButton button, Integer shift) {
    heldButton_ = static_cast<Integer>(heldButton_ & ~button);
    HeadlessWindow* target = mouseTarget();
    const WindowHandle pressed = std::exchange(pressed_, 0);
    if (target == nullptr)
        return;
    if (capture_ == pressed)
        capture_ = 0;
    const WindowHandle handle = target->hWnd();
    deliverMouse(&UserControl::UserControl_MouseUp, *target, button, shift);
    // The handler may have destroyed the window, or moved it away.
    target = find(handle);
    if (target != nullptr && handle == pressed && target->contains(pointer_))
        target->client().UserControl_Click();
}

void Desktop::postMove(Point to) {
    post([this, to] { deliverMove(to); });
}

void Desktop::postPress(MouseButton button, Integer shift) {
    post([this, button, shift] { deliverPress(button, shift, false); });
}

void Desktop::postDoublePress(MouseButton button, Integer shift) {
    post([this, button, shift] { deliverPress(button, shift, true); });
}

void Desktop::postRelease(MouseButton button, Integer shift) {
    post([this, button, shift] { deliverRelease(button, shift); });
}

void Desktop::postWheel(Long rotation, Integer shift) {
    post([this, rotation, shift] {
        HeadlessWindow* target = windowAt(pointer_);
        if (target == nullptr || !target->takesInput())
            return;
        const Point at = target->pointer();
        target->client().UserControl_Wheel(
            rotation, shift, static_cast<Single>(at.x), static_cast<Single>(at.y));
    });
}

void Desktop::move(Point to) {
    postMove(to);
    run();
}

void Desktop::press(MouseButton button, Integer shift) {
    postPress(button, shift);
    run();
}

void Desktop::release(MouseButton button, Integer shift) {
    postRelease(button, shift);
    run();
}

void Desktop::click(MouseButton button, Integer shift) {
    press(button, shift);
    release(button, shift);
}

void Desktop::doubleClick(MouseButton button, Integer shift) {
    click(button, shift);
    postDoublePress(button, shift);
    run();
    release(button, shift);
}

void Desktop::dragTo(Point to, MouseButton button, Integer shift) {
    press(button, shift);
    move(to);
    release(button, shift);
}

void Desktop::wheel(Long rotation, Integer shift) {
    postWheel(rotation, shift);
    run();
}

void Desktop::postKeyDown(Integer keyCode, Integer shift) {
    post([this, keyCode, shift] {
        if (HeadlessWindow* target = find(focus_); target != nullptr && target->takesInput())
            target->client().UserControl_KeyDown(keyCode, shift);
    });
}

void Desktop::postKeyUp(Integer keyCode, Integer shift) {
    post([this, keyCode, shift] {
        if (HeadlessWindow* target = find(focus_); target != nullptr && target->takesInput())
            target->client().UserControl_KeyUp(keyCode, shift);
    });
}

void Desktop::postCharacter(Integer character) {
    post([this, character] {
        if (HeadlessWindow* target = find(focus_); target != nullptr && target->takesInput()) {
            target->client().UserControl_KeyPress(character);
            return;
        }
        for (HeadlessTextBox* box : textBoxes_) {
            if (box->hWnd() == focus_ && box->parent().takesInput()) {
                box->enter(character);
                return;
            }
        }
    });
}

void Desktop::key(Integer keyCode, Integer shift) {
    postKeyDown(keyCode, shift);
    // Enter, Escape and their like are characters too.
    if (keyCode <= lastControlCharacterKey &&
        (keyCode == 8 || keyCode == 9 || keyCode == 13 || keyCode == 27))
        postCharacter(keyCode);
    postKeyUp(keyCode, shift);
    run();
}

void Desktop::type(StringView text) {
    for (const char16_t unit : text)
        postCharacter(static_cast<Integer>(unit));
    run();
}

} // namespace lumtex
