/// \file
/// What the control keeps between calls: its content, and a struct for each room that writes
/// one.
#pragma once

#include "drawing/artwork.h"
#include "interaction/interaction_state.h"
#include "persistence/content_state.h"
#include "records/column_header.h"
#include "records/row_record.h"
#include "render/paint_state.h"
#include "scroll/scroll_state.h"
#include "sortfind/find_state.h"
#include "sortfind/sort_state.h"
#include "values/references/object.h"

#include <memory>
#include <vector>

namespace lumtex {

class LumtexAbout;

/// The data of `lmListView`, its properties and children apart. See docs/architecture.md for which room owns
/// which struct.
class ListViewState {
  protected:
    FontRef lblFont; ///< initial value of the two default fonts
    ListViewArtwork artwork_ = ListViewArtwork::standard();

    std::vector<RowRecord> rows_;
    std::vector<std::unique_ptr<ColumnHeader>> columns_;
    bool rowsAllocated_ = false;    ///< from the first `RowsAdd` until `RowsClear`
    bool columnsAllocated_ = false; ///< from the first `ColumnsAdd` until `ColumnsClear`
    Long newColumnSlot_ = 0;        ///< 0-based; the column that `ColumnsAdd` is filling
    bool knownProgram_ = false;     ///< see `recogniseProgram`
    Single topInset_ = 0;           ///< pixels above a text placed at the top of its row

    PaintState paint_;
    MouseState mouse_;
    HeaderPressState headerPress_;
    SelectionState selection_;
    EditState edit_;
    ItemMoveState move_;
    SortState sort_;
    FindState find_;
    ScrollState scroll_;
    ContentState content_;
    Held<ObjectRef> recordset_;          ///< as it was assigned; the list has taken its records already
    std::shared_ptr<LumtexAbout> about_; ///< the form of the world, from the first `About` on
};

} // namespace lumtex
