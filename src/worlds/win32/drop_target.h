/// \file
/// A window that things are dropped on.
#pragma once

#include "worlds/win32/com_ref.h"

namespace lumtex {
class UserControl;
} // namespace lumtex

namespace lumtex::win32 {

class DropTarget;

/// Has the system report to `client` what is dragged over `window` and dropped there, as long as this lives.
/// Without effect if the system refuses: on a thread of many-threaded objects, or where somebody else
/// takes the window's drops already. Both must outlive this.
///
/// The client hears UserControl_OLEDragOver with the states below, and UserControl_OLEDragDrop. The effect
/// that it is told is what the source allows, as a sum of 1 copy, 2 move, 4 link; what it leaves there, as
/// far as the source allows it, is the answer. It may end the window, and this, in an event.
class DropPlace {
  public:
    DropPlace(HWND window, UserControl& client);
    DropPlace(const DropPlace&) = delete;
    DropPlace& operator=(const DropPlace&) = delete;
    ~DropPlace();

  private:
    HWND window_;
    bool hasOle_;
    ComRef<DropTarget> target_; ///< null if the system refused
};

/// The last argument of UserControl_OLEDragOver.
enum DragState : short {
    dragEnters = 0,
    dragLeaves = 1,
    dragMoves = 2,
};

} // namespace lumtex::win32
