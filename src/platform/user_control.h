/// \file
/// The event entry points of an own-drawn control, as a window calls them.
#pragma once

#include "values/types.h"
#include "values/variant.h"

namespace lumtex {

/// Mouse buttons as mouse events carry them.
enum MouseButton : Integer {
    noButton = 0,
    leftButton = 1,
    rightButton = 2,
    middleButton = 4,
};

/// What a drag carries; opaque to the control, which only passes it on.
using DragData = ObjectRef;

/// Base of every own-drawn thing: the list, its bars, thumbs and buttons.
///
/// A window calls these on the interface thread. Coordinates are pixels of the control's own surface and may
/// lie outside it during a capture. An entry point may re-enter through `EventQueue::DoEvents`. None may
/// throw. What a control does not care for stays empty.
class UserControl {
  public:
    UserControl() = default;
    UserControl(const UserControl&) = delete;
    UserControl& operator=(const UserControl&) = delete;
    virtual ~UserControl() = default;

    virtual void UserControl_MouseDown(Integer /*Button*/, Integer /*Shift*/, Single /*X*/, Single /*Y*/) {}
    virtual void UserControl_MouseMove(Integer /*Button*/, Integer /*Shift*/, Single /*X*/, Single /*Y*/) {}
    virtual void UserControl_MouseUp(Integer /*Button*/, Integer /*Shift*/, Single /*X*/, Single /*Y*/) {}
    /// After the release of a press on the same window.
    virtual void UserControl_Click() {}
    /// In place of the second press of a double click; the release follows as usual.
    virtual void UserControl_DblClick() {}
    /// Wheel rotation in the platform's unit: 120 a notch, positive away from the user. False: not for this
    /// control, but for the one around it.
    virtual bool UserControl_Wheel(Long /*Rotation*/, Integer /*Shift*/, Single /*X*/, Single /*Y*/) {
        return false;
    }

    /// Key codes are the classic virtual key numbers.
    virtual void UserControl_KeyDown(Integer /*KeyCode*/, Integer /*Shift*/) {}
    virtual void UserControl_KeyPress(Integer /*KeyAscii*/) {}
    virtual void UserControl_KeyUp(Integer /*KeyCode*/, Integer /*Shift*/) {}

    virtual void UserControl_GotFocus() {}
    virtual void UserControl_LostFocus() {}
    /// After the surface took its new size.
    virtual void UserControl_Resize() {}
    virtual void UserControl_Show() {}

    virtual void UserControl_OLECompleteDrag(Long& /*Effect*/) {}
    virtual void UserControl_OLEDragDrop(const DragData& /*Data*/,
                                         Long& /*Effect*/,
                                         Integer& /*Button*/,
                                         Integer& /*Shift*/,
                                         Single& /*X*/,
                                         Single& /*Y*/) {}
    virtual void UserControl_OLEDragOver(const DragData& /*Data*/,
                                         Long& /*Effect*/,
                                         Integer& /*Button*/,
                                         Integer& /*Shift*/,
                                         Single& /*X*/,
                                         Single& /*Y*/,
                                         Integer& /*State*/) {}
    virtual void UserControl_OLEGiveFeedback(Long& /*Effect*/, bool& /*DefaultCursors*/) {}
    virtual void UserControl_OLESetData(const DragData& /*Data*/, Integer& /*DataFormat*/) {}
    virtual void UserControl_OLEStartDrag(const DragData& /*Data*/, Long& /*AllowedEffects*/) {}
};

} // namespace lumtex
