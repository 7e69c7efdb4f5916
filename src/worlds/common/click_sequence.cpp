#include "worlds/common/click_sequence.h"

#include <utility>

namespace lumtex::worlds {

/// Capture and keyboard; does the window take input after that?
bool ClickSequence::begin(Target* target) {
    if (target == nullptr)
        return false;
    target->capture();
    // A window does not take the focus away from its own text box: an open editor stays open until the window
    // has decided what to do with it. A host's control in it is not its own.
    if (!target->ownBoxHasKeys())
        target->takeKeys();
    return target->takesInput();
}

void ClickSequence::press(Target* target, const Event& event) {
    if (!begin(target))
        return;
    window_ = target->handle();
    button_ = event.button;
    target->mouseDown(event);
}

void ClickSequence::pressAgain(Target* target, const Event& event) {
    forget();
    if (begin(target))
        target->doubleClick(event);
}

void ClickSequence::release(Target* target, const Event& event, const std::function<void()>& endCapture) {
    const WindowHandle pressed = event.button == button_ ? std::exchange(window_, 0) : 0;
    if (event.buttons == noButton)
        endCapture();
    if (target == nullptr || !target->isThere())
        return;
    target->mouseUp(event);
    if (target->handle() == pressed && target->takesInput() && target->covers(event.at))
        target->click();
}

} // namespace lumtex::worlds
