#include "worlds/headless/person.h"

namespace lumtex::headless {

namespace {

constexpr Long notch = 120;

} // namespace

/// No hand keeps still: the last move finds what the list made of the one before.
void Person::goTo(Point place, Integer shift) {
    desktop_.move(place, shift);
    rest();
    desktop_.move(place, shift);
}

void Person::goTo(const Window& window, Single x, Single y) {
    goTo(desktop_.onDesktop(window, x, y), 0);
}

void Person::click(const Window& window, Single x, Single y, MouseButton button, Integer shift) {
    goTo(window, x, y);
    desktop_.click(button, shift);
    rest();
}

void Person::doubleClick(const Window& window, Single x, Single y, MouseButton button, Integer shift) {
    goTo(window, x, y);
    desktop_.doubleClick(button, shift);
    rest();
}

void Person::drag(const Window& window, Point from, Point to, MouseButton button, Integer shift) {
    // At first, since host code that runs on the way may take the window along.
    const Point target = desktop_.onDesktop(window, static_cast<Single>(to.x), static_cast<Single>(to.y));
    goTo(window, static_cast<Single>(from.x), static_cast<Single>(from.y));
    desktop_.press(button, shift);
    rest();
    goTo(target, shift);
    desktop_.release(button, shift);
    rest();
}

void Person::wheel(const Window& window, Single x, Single y, Long notches) {
    goTo(window, x, y);
    for (; notches != 0; notches += notches < 0 ? 1 : -1) {
        desktop_.wheel(notches < 0 ? -notch : notch);
        rest();
    }
}

void Person::type(StringView text) {
    desktop_.type(text);
    rest();
}

void Person::key(Integer keyCode, Integer shift) {
    desktop_.key(keyCode, shift);
    rest();
}

} // namespace lumtex::headless
