/// \file
/// The means to look inside a list: what its parts are about, in words.
#pragma once

#include "interaction/cell_editor.h"
#include "interaction/header_gesture.h"
#include "interaction/mouse.h"
#include "interaction/row_drag.h"
#include "interaction/selection.h"
#include "model/list_view.h"
#include "render/painting.h"
#include "scroll/scroller.h"
#include "sortfind/finder.h"
#include "sortfind/sorter.h"
#include "values/text.h"
#include "worlds/headless/headless_guide_line.h"
#include "worlds/headless/headless_text_box.h"

#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace lumtex {

namespace testing {

inline std::string yesNo(bool value) {
    return value ? "yes" : "no";
}
/// A position from 0 as the words below name it: from 1, or "none".
inline std::string fromOne(Long position) {
    return position == -1 ? "none" : std::to_string(std::int64_t{position} + 1);
}
template <class Number>
std::string numberText(Number number) {
    std::ostringstream text;
    text << +number;
    return text.str();
}

/// Whether a state has all of `words`, which are separated by blanks.
inline ::testing::AssertionResult says(const std::string& state, const std::string& words) {
    std::istringstream all(words);
    for (std::string word; all >> word;)
        if ((" " + state + " ").find(" " + word + " ") == std::string::npos)
            return ::testing::AssertionFailure() << "not \"" << word << "\" but \"" << state << "\"";
    return ::testing::AssertionSuccess() << "\"" << state << "\"";
}

} // namespace testing

/// The private state, for tests alone. Each part says in words such as "hover=2 pressed=none" what it is
/// about; rows and columns count from 1 there. What a user can do is done by pointer, keys and members of the
/// list.
class ListViewInspector {
  public:
    explicit ListViewInspector(lmListView& list) : list_(list) {}

    // The parts, in words

    std::string painting() {
        const PaintState& state = core().painting->state_;
        return "held=" + testing::yesNo(state.paintBusy) + " first=" + testing::fromOne(state.firstColumn) +
               " x=" + testing::numberText(state.firstColumnX) +
               " right=" + testing::numberText(state.columnsRight);
    }
    std::string header() {
        const HeaderGesture::State& state = core().headerGesture->state_;
        return "hover=" + testing::fromOne(state.hoverColumn) +
               " pressed=" + testing::fromOne(state.pressedColumn) +
               " divider=" + testing::fromOne(state.resizeColumn) +
               " resizing=" + testing::yesNo(state.resizing) +
               " pending=" + testing::yesNo(state.pressPending) +
               " current=" + testing::fromOne(state.currentColumn);
    }
    /// `row` and `column` are the item that the mouse is over, as they are stored.
    std::string mouse() {
        const Mouse::State& state = core().mouse->state_;
        return "inside=" + testing::yesNo(state.mouseInside) + " x=" + testing::numberText(state.lastMouseX) +
               " y=" + testing::numberText(state.lastMouseY) +
               " button=" + testing::numberText(state.lastMouseButton) +
               " row=" + testing::numberText(state.hoverRow) +
               " column=" + testing::numberText(state.hoverCellColumn);
    }
    /// `row` and `column` are the cell of the last click.
    std::string edit() {
        const CellEditor::State& state = core().editor->edit_;
        return "row=" + testing::fromOne(state.lastClickRow) +
               " column=" + testing::fromOne(state.lastClickColumn) +
               " active=" + testing::yesNo(state.editActive);
    }
    /// What setting the current row does besides, the row a range begins at, the keys held.
    std::string selection() {
        const Selection::State& state = core().selection->state_;
        return "selects=" + testing::yesNo(state.selectOnIndexSet) +
               " scrolls=" + testing::yesNo(state.indexScrollArmed) +
               " anchor=" + testing::fromOne(state.selectionAnchor) +
               " shift=" + testing::yesNo(state.shiftDown) + " control=" + testing::yesNo(state.ctrlDown);
    }
    std::string drag() { return "target=" + testing::fromOne(core().rowDrag->moveTargetRow_); }
    std::string scroll() {
        const Scroller::State& state = core().scroller->state_;
        return "visible=" + testing::numberText(state.visibleRowCount) +
               " hidden=" + testing::yesNo(state.lastRowHidden) +
               " pending=" + testing::yesNo(state.scrollPending);
    }
    /// `text` is whether the column of the last sort held any.
    std::string sort() {
        const Sorter::State& state = core().sorter->state_;
        return "column=" + testing::fromOne(state.sortColumn) +
               " up=" + testing::numberText(state.sortAscending) +
               " text=" + testing::yesNo(state.hasSortableText);
    }
    /// Where a search goes on: positions in the two lists, from 0.
    std::string find() {
        const Finder::State& state = core().finder->state_;
        return "row=" + testing::numberText(state.findRowPos) +
               " column=" + testing::numberText(state.findColumnPos);
    }
    /// The texts that the two lists were read from.
    std::string findLists() {
        const Finder::State& state = core().finder->state_;
        return toUtf8(state.findColumnSpec) + " | " + toUtf8(state.findRowSpec);
    }

    // The only writes: what no user's way leads to, or only one that changes more than the test is about

    /// No column is pressed, hovered over, resized or sorted: as saved settings leave it, where a new list
    /// starts with zeros.
    void makeIdle() {
        core().headerGesture->state_ = {.pressPending = false,
                                        .currentColumn = -1,
                                        .pressedColumn = -1,
                                        .hoverColumn = -1,
                                        .resizeColumn = -1,
                                        .resizing = false};
        core().sorter->state_.sortColumn = -1;
    }
    /// As inside a pass, or behind one that gave up.
    void holdPainting(bool held) { held ? core().painting->hold() : core().painting->release(); }
    /// As while a bar's handler waits for the host.
    void letScrollPend(bool pending) { core().scroller->state_.scrollPending = pending; }
    /// A left edge that only an earlier, wider list can have left.
    void letFirstColumnX(Single x) { core().painting->state_.firstColumnX = x; }
    // The middle of a gesture, without the paints and events that lead there.
    void beginPress() { core().headerGesture->beginPress(); }
    void beginResize(Long column) {
        core().headerGesture->state_.resizing = true;
        core().headerGesture->state_.resizeColumn = column;
    }
    void letPressedColumn(Long column) { core().headerGesture->state_.pressedColumn = column; }
    void letHoverColumn(Long column) { core().headerGesture->state_.hoverColumn = column; }
    void letDividerColumn(Long column) { core().headerGesture->state_.resizeColumn = column; }
    void letDropTarget(Long row) { core().rowDrag->letTarget(row); }
    // What the mouse did last, without the paints that a real move causes.
    void letInside(bool inside) { core().mouse->state_.mouseInside = inside; }
    void letButton(Integer button) { core().mouse->state_.lastMouseButton = button; }
    void letPointer(Single x, Single y, Integer button) {
        core().mouse->state_.lastMouseX = x;
        core().mouse->state_.lastMouseY = y;
        letButton(button);
    }
    /// The list never stores one.
    void letHoverRow(Long row) { core().mouse->state_.hoverRow = row; }
    void letLastClick(Long row, Long column) {
        core().editor->letLastClickRow(row);
        core().editor->letLastClickColumn(column);
    }
    // Switches that a press or an arrow key holds off only while it runs.
    void letIndexSelect(bool selects) { core().selection->state_.selectOnIndexSet = selects; }
    void letIndexScroll(bool scrolls) { core().selection->state_.indexScrollArmed = scrolls; }
    /// Also where no press was.
    void letAnchor(Long row) { core().selection->state_.selectionAnchor = row; }
    /// The mark alone, on rows that stay as they are.
    void letSortMark(Long column, Byte up) {
        core().sorter->state_.sortColumn = column;
        core().sorter->state_.sortAscending = up;
    }
    /// What `RowsClear` and `ColumnsClear` leave behind.
    void clearRows() { core().records.clearRows(); }
    void clearColumns() { core().records.clearColumns(); }

    // What has an interface of its own

    ListViewCore& core() { return list_; }
    WalkCounters& counters() { return core().counters; }
    Properties& properties() { return core().properties; }
    RowArray& rows() { return core().records.rows_; }
    std::vector<std::unique_ptr<ColumnHeader>>& columns() { return core().records.columns_; }
    bars::lmVScroll& vertical() { return core().scroller->vertical(); }
    bars::lmHScroll& horizontal() { return core().scroller->horizontal(); }
    TextBox& anyEditor() { return *core().editor->txtEdit_; }
    GuideLine& anyGuide() { return *core().headerGesture->Line1_; }
    /// Of a list on a Desktop.
    headless::HeadlessTextBox& editor() { return static_cast<headless::HeadlessTextBox&>(anyEditor()); }
    headless::HeadlessGuideLine& guide() { return static_cast<headless::HeadlessGuideLine&>(anyGuide()); }
    Timer& mouseInTimer() { return *core().mouse->tmrMouseIn_; }
    Timer& mouseActionTimer() { return *core().mouse->tmrMouseAction_; }
    const drawing::ListViewArtwork& artwork() { return core().painting->artwork(); }
    const ControlLife& life() { return core().life(); }
    bool hasTips() { return core().mouse->tips_ != nullptr; }
    Single firstColumnX() { return core().painting->firstColumnX(); }
    Long ColumnHeight() { return core().painting->ColumnHeight(); }
    Long VisibleItems() { return core().scroller->VisibleItems(); }
    OLE_COLOR aktValueColor() { return core().painting->aktValueColor(); }
    Single topInset() { return core().topInset(); }

    // Procedures that the list calls at times of its own

    bool ArrDim(const Variant& which) { return list_.ArrDim(which); }
    void letAllowItemMoving(bool value) { list_.letAllowItemMoving(value); }
    void CheckForRedraw() { core().CheckForRedraw(); }
    void verticalChange() { core().scroller->VS_Change(); }
    void verticalScroll() { core().scroller->VS_Scroll(); }
    void horizontalScroll() { core().scroller->HS_Scroll(); }
    void MouseOut(Single x, Single y) { core().mouse->MouseOut(x, y); }
    void SetNewSelected(Long index) { core().selection->SetNewSelected(index); }
    /// In notches, up above 0.
    void turnWheel(Integer rotation) {
        Integer keys = 0;
        Single x = 0;
        Single y = 0;
        core().scroller->Wheel1_WheelScroll(rotation, keys, x, y);
    }
    void MoveItemUp(Long row, Long count) { core().rowDrag->MoveItemUp(row, count); }
    void MoveItemDown(Long row, Long count) { core().rowDrag->MoveItemDown(row, count); }

  private:
    lmListView& list_;
};

} // namespace lumtex
