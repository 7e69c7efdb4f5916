/// \file
/// Dragging the current row to another place.
#pragma once

#include "model/list_view_core.h"

namespace lumtex {

/// Rows count from 0.
class RowDrag : private ListPart {
  public:
    explicit RowDrag(ListViewCore& core) : ListPart(core) {}

    /// The mouse is over `row` while a button is held.
    void dragRow(Long row);
    /// The button was let go, anywhere.
    void dropRow();

    /// Where the dragged rows would drop.
    bool drawsMarkAt(Long row) const { return moveTargetRow_ == row; }
    void letTarget(Long row) { moveTargetRow_ = row; }
    void forgetTarget() { moveTargetRow_ = -1; }

  private:
    friend class ListViewInspector; ///< how tests look inside

    void MoveItemUp(Long Row, Long Count);
    void MoveItemDown(Long Row, Long Count);

    Long moveTargetRow_ = 0;
};

} // namespace lumtex
