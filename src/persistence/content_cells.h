/// \file
/// The cells of a list, for saving and loading whole records at once.
#pragma once

#include "model/list_view_core.h"
#include "records/cell_style.h"
#include "values/prefetching.h"

#include <optional>

namespace lumtex {

/// Says when the public accessors can be bypassed without observable difference.
class ContentCells {
  public:
    explicit ContentCells(ListViewCore& core) : core_(core) {}

    /// The cells of the row if that of `column` is among them; null if the accessors would fail. Both
    /// count from 1.
    Items* cellsOf(Long row, Long column) const {
        return row <= core_.records.RowsCount() ? core_.records.cellsOf(row, column) : nullptr;
    }
    /// Has the machine fetch the cells that a walk down the column comes to after that one: they lie far
    /// apart.
    LUMTEX_PREFETCHING void prefetch(Long row, Long column) const {
        core_.records.rows().prefetch(static_cast<std::size_t>(row) + rowsAhead,
                                      static_cast<std::size_t>(column) - 1);
    }
    /// Assigning to a cell changes that cell and nothing else.
    bool assignSilently() const { return !core_.properties.AutoRedraw && !core_.designMode(); }
    /// What cells of a file without properties look like; none where their font is missing.
    std::optional<CellStyle> plainStyle() const;

  private:
    static constexpr std::size_t rowsAhead = 16;

    ListViewCore& core_;
};

} // namespace lumtex
