/// \file
/// Mouse buttons of Qt by the numbers that hosts know.
#pragma once

#include "platform/user_control.h"

#include <Qt>

namespace lumtex::qt {

constexpr MouseButton buttonOf(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return leftButton;
    case Qt::RightButton:
        return rightButton;
    case Qt::MiddleButton:
        return middleButton;
    default:
        return noButton;
    }
}

inline Integer buttonsOf(Qt::MouseButtons buttons) {
    int all = noButton;
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        if (buttons.testFlag(button))
            all |= buttonOf(button);
    return static_cast<Integer>(all);
}

} // namespace lumtex::qt
