/// \file
/// The current row, the selected rows, and the keys that move them.
#pragma once

#include "model/list_view_core.h"

#include <optional>

namespace lumtex {

/// Rows count from 0. Two switches say what setting the current row does besides: a press and the arrow keys
/// hold them off while they do it themselves.
class Selection : private ListPart {
  public:
    explicit Selection(ListViewCore& core) : ListPart(core) {}

    Long ListIndex();
    void letListIndex(Long index);
    Long RowIndex();
    void letRowIndex(Long index);

    void NoSelected(std::optional<Long> index = std::nullopt);

    // A press

    void beginPress();
    void pressSelection(Long row, Procedure& p);
    void endPress() { state_.selectOnIndexSet = true; }
    bool ctrlDown() const { return state_.ctrlDown; }

    // Keys

    void keyDown(Integer KeyCode, Integer Shift);
    void keyUp(Integer KeyCode, Integer Shift);

    /// The idle value of a list that saved settings are read into.
    void forgetAnchor() { state_.selectionAnchor = -1; }

  private:
    friend class ListViewInspector; ///< how tests look inside

    struct State {
        bool selectOnIndexSet = false; ///< setting `ListIndex` also makes that row the only selected one
        bool indexScrollArmed = false; ///< setting `ListIndex` may scroll
        Long selectionAnchor = 0;      ///< the other end of a range selected with Shift
        bool shiftDown = false;        ///< the last key pressed was Shift
        bool ctrlDown = false;         ///< the last key pressed was Control
    };

    void SetNewSelected(Long index);
    bool rowCanBeCurrent(Long row, Procedure& p);
    void arrowDown(Long visible, Procedure& p);
    void arrowUp(Long visible, Procedure& p);

    State state_;
};

} // namespace lumtex
