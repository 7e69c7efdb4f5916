/// \file
/// Painting the list, and what a pass leaves behind for the hit tests.
#pragma once

#include "drawing/artwork.h"
#include "model/list_view_core.h"

#include <span>

namespace lumtex {

/// What a pass leaves behind for the hit tests and for the next pass.
struct PaintState {
    bool paintBusy = false;  ///< a pass runs, or painting is held off
    Long firstColumn = 0;    ///< 0-based; the first column painted
    Single firstColumnX = 0; ///< pixels; its left edge on the surface
    Single columnsRight = 0; ///< pixels; right edge of the last column
    Long headerHeight = 0;   ///< pixels, 0 without headers
    Long firstRow = 0;       ///< 0-based; the first row painted
    Long lastRow = -1;       ///< the last one
    Long passes = 0;         ///< how many ran to their end
    Rect textRect;           ///< handed to `drawText`; shared by header and cells

    String cellText; ///< room for the text of a cell, kept so that painting allocates nothing
};

class Painting : private ListPart {
  public:
    explicit Painting(ListViewCore& core);

    /// See `lmListView`.
    void Redraw();
    void ClearListView();
    void AutoColumnSize(std::span<const Variant> lColumns);

    /// Until `release` no pass runs.
    void hold() { state_.paintBusy = true; }
    void release() { state_.paintBusy = false; }

    Long ColumnHeight();
    /// Unrounded, as all working coordinates are. `index` counts from 0.
    Single columnWidthInPixels(Long index);
    OLE_COLOR aktValueColor() const;
    void DrawBorder();
    /// Cuts the pieces of the hover bar from the strip that `Skin` holds.
    void SplitSkin();
    const drawing::ListViewArtwork& artwork() const { return artwork_; }

    // Where the last pass put the columns; pixels of the surface

    Long firstColumn() const { return state_.firstColumn; }
    Single firstColumnX() const { return state_.firstColumnX; }
    Single columnsRight() const { return state_.columnsRight; }
    const PaintState& lastPass() const { return state_; }

  private:
    friend class ListViewInspector; ///< how tests look inside

    void paintDesignView();
    void fitColumn(Long column, Procedure& p);

    PaintState state_;
    drawing::ListViewArtwork artwork_ = drawing::ListViewArtwork::standard();
    std::unique_ptr<Surface> Picture1_; ///< measures, so that the list's own surface keeps its font
};

} // namespace lumtex
