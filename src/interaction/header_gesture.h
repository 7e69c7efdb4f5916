/// \file
/// What the mouse does to the headers: hover, press, the drag of a divider, the click.
#pragma once

#include "model/list_view_core.h"
#include "platform/guide_line.h"

namespace lumtex {

/// Where a column lies on the surface.
struct ColumnSpan {
    Long column; ///< from 0
    Single left; ///< pixels
    Single width;
};

enum class HeaderLook : Byte { normal, hover, down };

/// Begun by a press, carried on by moves and by the paint pass, which alone knows where the columns are, and
/// ended by the release. Columns count from 0, -1 for none.
class HeaderGesture : private ListPart {
  public:
    explicit HeaderGesture(ListViewCore& core);

    // The mouse

    void beginPress();
    void pressColumn(Single X, Single Y);
    /// A move without a button ends what a lost release left open.
    void moveWithoutButton();
    void moveOverHeaders(Single X, Single Y, Procedure& p);
    void release(Single X, Procedure& p);

    // Without the mouse

    /// What a click on the header of `column` does: the event, and where the column allows it the sort.
    void activate(Long column);
    /// A press without a place falls on `column`; until `endPressOn` no pass takes that of the mouse instead.
    void pressOn(Long column) {
        state_.currentColumn = column;
        state_.columnHeld = true;
    }
    void endPressOn() { state_.columnHeld = false; }

    /// Under the last press or release.
    Long currentColumn() const { return state_.currentColumn; }

    // The paint pass

    void beginPass() { state_.hoverColumn = -1; }
    /// Decides what the mouse is doing to a column. `headerHeight` is in pixels.
    void trackMouse(const ColumnSpan& span, Single headerHeight);
    HeaderLook lookOf(Long column) const;
    bool isHeldDown(Long column) const;
    /// Whether the cursor shows that a divider can be dragged.
    bool isOnDivider() const;

    /// The idle values of a list that saved settings are read into.
    void forgetColumns();

  private:
    friend class ListViewInspector; ///< how tests look inside

    struct State {
        bool pressPending = false; ///< the first paint after a press may turn it into a column press
        Long currentColumn = 0;
        Long pressedColumn = 0;  ///< whose header body is held down
        Long hoverColumn = 0;    ///< in hover look
        Long resizeColumn = 0;   ///< whose divider the cursor is on
        bool resizing = false;   ///< a divider drag runs
        bool columnHeld = false; ///< `currentColumn` is no business of the mouse
    };

    void endResize(Single X, Procedure& p);
    void clickColumn(Procedure& p);
    void end(Procedure& p);

    State state_;
    std::unique_ptr<GuideLine> Line1_;
};

} // namespace lumtex
