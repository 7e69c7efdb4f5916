/// \file
/// The cells of a list, for saving and loading whole records at once.
#pragma once

#include "model/list_view.h"

namespace lumtex {

/// Says when the public accessors can be bypassed without observable difference.
class ContentCells {
  public:
    explicit ContentCells(lmListView& list) : list_(list) {}

    /// The cells of the row if that of `column` is among them; null if the accessors would fail. Both
    /// count from 1.
    Items* cellsOf(Long row, Long column) const {
        if (row > list_.RowsCount())
            return nullptr;
        Items& cells = list_.rows_[static_cast<std::size_t>(row) - 1].items;
        return static_cast<std::size_t>(column) <= cells.count() ? &cells : nullptr;
    }
    /// Assigning to a cell changes that cell and nothing else.
    bool assignSilently() const { return !list_.AutoRedraw() && !list_.designMode(); }
    /// What cells of a file without properties look like; none where their font is missing.
    std::optional<CellStyle> plainStyle() const;

  private:
    lmListView& list_;
};

} // namespace lumtex
