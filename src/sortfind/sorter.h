/// \file
/// Ordering the rows by the texts of one column, and the mark of it on the header.
#pragma once

#include "model/list_view_core.h"
#include "records/enumerations.h"

namespace lumtex {

class Sorter : private ListPart {
  public:
    explicit Sorter(ListViewCore& core) : ListPart(core) {}

    /// See `lmListView`. `Column` counts from 1.
    void Sort(Long Column, cSortMode SortMode, cSortType SortType);
    /// A click on the header of `column`, which counts from 0.
    void sortByClick(Long column);

    /// From 0, -1 for none.
    Long sortColumn() const { return state_.sortColumn; }
    /// 0 points the arrow down, 1 up.
    Byte sortAscending() const { return state_.sortAscending; }
    /// The idle values of a list that saved settings are read into.
    void forgetSort();

  private:
    friend class ListViewInspector; ///< how tests look inside

    struct State {
        Long sortColumn = 0;
        Byte sortAscending = 0;
        bool hasSortableText = false; ///< whether the column of the last sort held any text but blanks
    };

    bool anyTextInColumn(Long Column);
    void quickSort(Long Column, cSortType SortType, cSortMode order);
    bool sortAtOnce(Long Column, cSortType SortType, cSortMode order);

    State state_;
};

} // namespace lumtex
