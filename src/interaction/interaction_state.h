/// \file
/// What the mouse and the keyboard left behind, as painting and the handlers read it.
#pragma once

#include "values/types.h"

namespace lumtex {

/// A new instance starts with zeros; one read from a bag starts at the idle values, -1 among them. Columns
/// and rows count from 0 here, -1 for none.
struct MouseState {
    Single lastMouseX = 0; ///< pixels; of the last press, move or release
    Single lastMouseY = 0;
    Integer lastMouseButton = 0; ///< of the last press, move or release
    bool mouseInside = false;    ///< the cursor is inside the control's window
    Single rowScanTop = 0;       ///< pixels; top of the row that a press last looked at
    Long hoverRow = 0;           ///< never stored to but for clearing it
    Long hoverCellColumn = 0;    ///< never stored to but for clearing it
};

/// What a press on the header began and its release must finish.
struct HeaderPressState {
    bool pressPending = false; ///< the first paint after a press may turn it into a column press
    Long currentColumn = 0;    ///< under the last press or release
    Long pressedColumn = 0;    ///< whose header body is held down
    Long hoverColumn = 0;      ///< in hover look; written by the header pass
    Long resizeColumn = 0;     ///< whose divider the cursor is on; written by the header pass
    bool resizing = false;     ///< a divider drag runs
};

struct SelectionState {
    bool selectOnIndexSet = false; ///< setting `ListIndex` also makes that row the only selected one
    bool indexScrollArmed = false; ///< setting `ListIndex` may scroll
    Long selectionAnchor = 0;      ///< the other end of a range selected with Shift
    bool shiftDown = false;        ///< the last key pressed was Shift
    bool ctrlDown = false;         ///< the last key pressed was Control
};

struct EditState {
    bool editActive = false;
    Long lastClickColumn = 0; ///< cell of the last press or release on an item; the editor's cell too
    Long lastClickRow = 0;
};

struct ItemMoveState {
    Long moveTargetRow = 0; ///< where the dragged rows would drop
};

} // namespace lumtex
