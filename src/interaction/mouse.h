/// \file
/// The mouse over the list: what lies under it, and what presses, moves and releases do.
#pragma once

#include "interaction/header_gesture.h"
#include "platform/timer.h"
#include "tips/qi.h"

#include <optional>

namespace lumtex {

/// Rows and columns count from 0; places are pixels of the surface.
class Mouse : private ListPart {
  public:
    explicit Mouse(ListViewCore& core);

    void down(Integer Button, Integer Shift, Single X, Single Y);
    void move(Integer Button, Integer Shift, Single X, Single Y);
    void up(Integer Button, Integer Shift, Single X, Single Y);
    void doubleClick();

    // Without a place

    enum class Aim : Byte { body, checkBox };
    /// What a press on a cell of an enabled row and its release do, but for the events of the mouse itself.
    void activate(Long row, Long column, Aim aim);

    /// The column at `X`; none while the mouse is not known to be inside the control.
    std::optional<ColumnSpan> columnUnder(Single X);

    // Of the last press, move or release

    Single lastX() const { return state_.lastMouseX; }
    Single lastY() const { return state_.lastMouseY; }
    Integer lastButton() const { return state_.lastMouseButton; }
    bool isInside() const { return state_.mouseInside; }

    void stopTimers();
    /// The same, with a report for a timer that refuses.
    void stopTimers(Procedure& p);

  private:
    friend class ListViewInspector; ///< how tests look inside

    struct State {
        Single lastMouseX = 0;
        Single lastMouseY = 0;
        Integer lastMouseButton = 0;
        bool mouseInside = false; ///< the cursor is inside the control's window
        Single rowScanTop = 0;    ///< top of the row that a press last looked at
        Long hoverRow = 0;        ///< never stored to but for clearing it
        Long hoverCellColumn = 0; ///< never stored to but for clearing it
    };
    /// Does a row's top edge belong to it?
    enum class RowEdge : Byte { excluded, included };

    std::optional<Long> rowUnder(Single Y, RowEdge topEdge, Procedure& p);
    std::optional<Long> rowPressed(Single Y, Procedure& p);
    Long lastRowToScan() const;

    void remember(Integer Button, Single X, Single Y);
    void press(Single X, Single Y, Procedure& p);
    template <class OnCheckBox>
    void pressRow(Long row, OnCheckBox onCheckBox, Procedure& p);
    bool inCheckBoxZone(Single X, Single Y, Procedure& p);
    void toggleCheckBox(Procedure& p);

    void drag(Single Y, std::optional<Long> row, Procedure& p);
    void leaveItem(Procedure& p);
    void releaseOnRow(Long row, Procedure& p);

    void tmrMouseIn_Timer();
    void tmrMouseAction_Timer();
    void MouseOut(Single X, Single Y);

    State state_;
    std::unique_ptr<Timer> tmrMouseIn_;
    std::unique_ptr<Timer> tmrMouseAction_;
    std::unique_ptr<tips::QI> tips_; ///< made on first need
};

} // namespace lumtex
