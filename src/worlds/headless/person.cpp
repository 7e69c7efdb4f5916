#include "worlds/headless/person.h"

namespace lumtex::headless {

namespace {

constexpr Long notch = 120;

} // namespace

void Person::goTo(const Window& window, Single x, Single y) {
    desktop_.move(window, x, y);
    rest();
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
    desktop_.move(target, shift);
    rest();
    desktop_.release(button, shift);
    rest();
}

void Person::wheel(const Window& window, Single x, Single y, Long notches) {
    goTo(window, x, y);
    desktop_.wheel(notches * notch);
    rest();
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
