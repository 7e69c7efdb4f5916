#include "helpers/sp_ev.h"

namespace lumtex {

namespace {

/// In the order in which they decide.
constexpr MouseButton buttons[] = {leftButton, rightButton, middleButton};

} // namespace

cMouseButton SpEv::MouseButtonPressed() {
    for (const MouseButton button : buttons) {
        // Wanted: any state but zero counts, so also a press since the last call.
        if (runtime_.desktop().wasPressed(button))
            // Wanted: the middle button is its key code 4, and not mouseMiddle, which is 3.
            return static_cast<cMouseButton>(button);
    }
    return mouseNone;
}

} // namespace lumtex
