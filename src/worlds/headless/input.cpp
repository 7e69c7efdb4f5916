/// What a user does: the verbs of pointer and keyboard.
#include "values/rounding.h"
#include "worlds/headless/desktop.h"
#include "worlds/headless/headless_window.h"

namespace lumtex::headless {

namespace {

Point shifted(Point origin, Single x, Single y) {
    return {origin.x + roundToLong(x), origin.y + roundToLong(y)};
}

} // namespace

Integer Desktop::withHeldKeys(Integer shift) const {
    return static_cast<Integer>(shift | keyboard_.shift());
}

Point Desktop::onDesktop(const Window& window, Single x, Single y) const {
    return shifted(paneOf(window.hWnd()).origin(), x, y);
}

Point Desktop::onDesktop(const TextBox& box, Single x, Single y) const {
    return shifted(paneOf(box.hWnd()).origin(), x, y);
}

void Desktop::postMove(Point to, Integer shift) {
    post([this, event = pointer_.moveTo(to, withHeldKeys(shift))] { pointer_.deliverMove(event); });
}

void Desktop::postPress(MouseButton button, Integer shift) {
    post([this, event = pointer_.press(button, withHeldKeys(shift))] { pointer_.deliverPress(event); });
}

void Desktop::postDoublePress(MouseButton button, Integer shift) {
    post([this, event = pointer_.press(button, withHeldKeys(shift))] { pointer_.deliverDoublePress(event); });
}

void Desktop::postRelease(MouseButton button, Integer shift) {
    post([this, event = pointer_.release(button, withHeldKeys(shift))] { pointer_.deliverRelease(event); });
}

void Desktop::postWheel(Long rotation, Integer shift) {
    post([this, rotation, event = pointer_.turnWheel(withHeldKeys(shift))] {
        pointer_.deliverWheel(event, rotation);
    });
}

void Desktop::move(Point to, Integer shift) {
    postMove(to, shift);
    run();
}

void Desktop::move(const Window& window, Single x, Single y, Integer shift) {
    move(onDesktop(window, x, y), shift);
}

void Desktop::press(MouseButton button, Integer shift) {
    postPress(button, shift);
    run();
}

void Desktop::press(const Window& window, Single x, Single y, MouseButton button, Integer shift) {
    move(window, x, y, shift);
    press(button, shift);
}

void Desktop::release(MouseButton button, Integer shift) {
    postRelease(button, shift);
    run();
}

void Desktop::click(MouseButton button, Integer shift) {
    press(button, shift);
    release(button, shift);
}

void Desktop::click(const Window& window, Single x, Single y, MouseButton button, Integer shift) {
    move(window, x, y, shift);
    click(button, shift);
}

void Desktop::doubleClick(MouseButton button, Integer shift) {
    click(button, shift);
    postDoublePress(button, shift);
    run();
    release(button, shift);
}

void Desktop::doubleClick(const Window& window, Single x, Single y, MouseButton button, Integer shift) {
    move(window, x, y, shift);
    doubleClick(button, shift);
}

void Desktop::dragTo(Point to, MouseButton button, Integer shift) {
    press(button, shift);
    move(to, shift);
    release(button, shift);
}

void Desktop::dragTo(const Window& window, Single x, Single y, MouseButton button, Integer shift) {
    dragTo(onDesktop(window, x, y), button, shift);
}

void Desktop::wheel(Long rotation, Integer shift) {
    postWheel(rotation, shift);
    run();
}

void Desktop::postKeyDown(Integer keyCode, Integer shift) {
    keyboard_.hold(keyCode);
    const Integer held = withHeldKeys(shift);
    post([this, keyCode, held] { keyboard_.deliverKeyDown(keyCode, held); });
    if (const Integer unit = characterOf(keyCode, held))
        postCharacter(unit);
}

void Desktop::postKeyUp(Integer keyCode, Integer shift) {
    keyboard_.letGo(keyCode);
    post([this, keyCode, held = withHeldKeys(shift)] { keyboard_.deliverKeyUp(keyCode, held); });
}

void Desktop::postCharacter(Integer unit) {
    post([this, unit] { keyboard_.deliverCharacter(unit); });
}

void Desktop::keyDown(Integer keyCode, Integer shift) {
    postKeyDown(keyCode, shift);
    run();
}

void Desktop::keyUp(Integer keyCode, Integer shift) {
    postKeyUp(keyCode, shift);
    run();
}

void Desktop::key(Integer keyCode, Integer shift) {
    keyDown(keyCode, shift);
    keyUp(keyCode, shift);
}

void Desktop::type(StringView text) {
    for (const char16_t unit : text) {
        const KeyStroke stroke = keyStrokeOf(unit);
        postKeyDown(stroke.keyCode, stroke.shift);
        if (stroke.keyCode == keys::packet)
            postCharacter(static_cast<Integer>(unit));
        postKeyUp(stroke.keyCode, stroke.shift);
        run();
    }
}

} // namespace lumtex::headless
