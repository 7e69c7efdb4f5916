/// \file
/// One run-time repaint, from the guard to the border.
#pragma once

#include "drawing/strokes.h"
#include "guards/error.h"
#include "interaction/header_gesture.h"
#include "model/list_view_core.h"
#include "render/painting.h"

namespace lumtex {

/// What a pass works on, and the working values that its steps hand to one another. What must outlive the
/// pass lies in `PaintState`.
struct PaintPassValues {
    PaintPassValues(ListViewCore& owner, PaintState& kept, Procedure& guard, Surface& target)
        : core(owner), list(owner.list()), counters(owner.counters), procedure(guard),
          properties(owner.properties), state(kept), surface(target) {}

    ListViewCore& core;
    lmListView& list;
    WalkCounters& counters;
    Procedure& procedure; ///< of `Redraw`; outlives the pass
    Properties& properties;
    PaintState& state;
    Surface& surface;

    // Of the whole pass

    Byte borderWidth = 0;
    static constexpr Single headerTop = 0;
    Single headerHeight = 0;
    Single penX = 0; ///< left edge of the cell being painted

    // Of the row being painted

    Single rowY = 0;          ///< its top
    Single rowBandHeight = 0; ///< its height as it will be stored and stepped
    Items items;              ///< a copy of its cells, so that a host may change the list meanwhile

    // Of the cell being painted

    Single columnWidthPx = 0;
    Long cellHeight = 0;
    Held<PictureRef> cellIcon; ///< the picture chosen, or none
    OLE_COLOR textColor = 0;
    TextFormat textFormat = TextFormat::left;
    bool checkBoxCell = false;

    // On purpose these outlive the cell that set them, and count for the cells behind it.

    Single lastIconHeight = 0; ///< of the last icon laid out in this pass; 0 until the first
    Byte downOffset = 0;       ///< text shift of the last header cell painted; the list's cells read it too
    Long fillColor = 0;        ///< -1: no fill; keeps its value where a cell assigns none
    TextFormat textAlignment = TextFormat::left; ///< keeps its value where a cell assigns none
};

/// Made for one pass and thrown away after it.
///
/// Each step is a member function in the file of its name: header_pass.cpp, header_cell.cpp, row_pass.cpp,
/// list_cell.cpp, cell_text.cpp, cell_icon.cpp, cell_object.cpp.
class PaintPass : private PaintPassValues {
  public:
    PaintPass(ListViewCore& owner, PaintState& kept, Procedure& p);

    void run();

  private:
    /// Ends the pass at once, from however deep.
    struct PassEnds {};

    // Running and ending (paint_pass.cpp)

    void runSteps();
    void clear();
    void backgroundAndHeaders();
    void paintBackgroundPicture();
    void scrollCorner();
    /// Gives up while a bar's handler waits in its yield; `paintBusy` stays set.
    void checkpoint() const;
    /// One statement that fails the common way: reported, and then the pass ends with `paintBusy` still set;
    /// under the silent flag the pass goes on with the next statement.
    template <class Statement>
    void statement(Statement body);

    // Headers (header_pass.cpp, header_cell.cpp)

    void findFirstColumn();
    void beginHeaders();
    void headerPass();
    void headerCell(HeaderLook look);
    void headerBackground(HeaderLook look, const drawing::StrokeFrame& frame);
    void hoverBar(const drawing::StrokeFrame& frame);
    void headerContent(const ColumnHeader& column, OLE_COLOR textColor);
    void sortArrow(const ColumnHeader& column);
    void emptyColumnField();
    void resizeCursor();
    Single footOfHeader() const { return headerHeight - 3 + static_cast<Single>(borderWidth); }

    // Rows (row_pass.cpp)

    void hideObjects(Long firstRow, Long lastRow);
    void beginRows();
    void rowPass();
    void rowCells();
    void finishRow();

    // Cells (list_cell.cpp, cell_text.cpp, cell_icon.cpp, cell_object.cpp). The cell is looked up anew in
    // each statement, since the report of the one before may have changed it, or moved it to another place.

    void listCell();
    void measureCellHeight();
    ListViewItem& item();
    const CellStyle& style() { return item().style(); }
    const CellExtras* extras() const;
    void cellBackground(bool rowSelected);
    OLE_COLOR selectionColor(const Variant& color, OLE_COLOR otherwise) const;
    void cellObject(const ObjectRef& shared);
    void placeCell();
    void cellColorsAndIcon(bool rowSelected);
    void chooseCheckBox();
    void cellIconRoom();
    void cellText();
    void cellIconPicture();
    TextFormat placeText();
};

template <class Statement>
void PaintPass::statement(Statement body) {
    const bool silent = silentError();
    const bool succeeded = procedure.step(body);
    if (!succeeded && !silent)
        throw PassEnds{};
}

} // namespace lumtex
