#include "hand.h"

#include <algorithm>
#include <cmath>

namespace lumtex::film {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds beforePress{160};
constexpr milliseconds pressed{200};
constexpr milliseconds afterPress{360};
constexpr milliseconds perNotch{240};
constexpr milliseconds perCharacter{120};

constexpr Long notch = 120;
constexpr Single pixelsPerTick = 20; // on the average of a way
constexpr Single fewestTicks = 8;

} // namespace

void Hand::travel(Place target) {
    const Point corner = desktop_.onDesktop(window_, 0, 0);
    const Place from{static_cast<Single>(desktop_.pointer().x - corner.x),
                     static_cast<Single>(desktop_.pointer().y - corner.y)};
    const Single way = std::hypot(target.x - from.x, target.y - from.y);
    const Single ticks = std::max(std::ceil(way / pixelsPerTick), fewestTicks);
    for (Single done = 1; done <= ticks; ++done) {
        const Single part = done / ticks;
        const Single eased = part * part * (3 - 2 * part);
        desktop_.move(window_, from.x + (target.x - from.x) * eased, from.y + (target.y - from.y) * eased);
        camera_.film(Camera::tick);
    }
}

void Hand::click(Single x, Single y) {
    travel({x, y});
    camera_.film(beforePress);
    desktop_.press();
    camera_.film(pressed);
    desktop_.release();
    camera_.film(afterPress);
}

void Hand::drag(Single fromX, Single fromY, Single toX, Single toY) {
    travel({fromX, fromY});
    camera_.film(beforePress);
    desktop_.press();
    camera_.film(pressed);
    travel({toX, toY});
    camera_.film(pressed);
    desktop_.release();
    camera_.film(afterPress);
}

void Hand::wheel(Long notches) {
    for (; notches != 0; notches += notches < 0 ? 1 : -1) {
        desktop_.wheel(notches < 0 ? -notch : notch);
        camera_.film(perNotch);
    }
}

void Hand::type(StringView text) {
    for (const char16_t unit : text) {
        desktop_.type({&unit, 1});
        camera_.film(perCharacter);
    }
}

void Hand::key(Integer keyCode) {
    desktop_.key(keyCode);
    camera_.film(afterPress);
}

} // namespace lumtex::film
