#include "helpers/sp_ev.h"

namespace lumtex {

namespace {

/// The platform's numbers of the mouse buttons, in the order in which they decide.
// Wanted: the middle button is its key code 4, and not mouseMiddle, which is 3.
constexpr Long buttonKeys[] = {1, 2, 4};

} // namespace

cMouseButton SpEv::MouseButtonPressed() {
    for (const Long key : buttonKeys) {
        // Wanted: any state but zero counts, so also a press since the last call.
        if (runtime_.asyncKeyState(key) != 0)
            return static_cast<cMouseButton>(key);
    }
    return mouseNone;
}

} // namespace lumtex
