/// \file
/// The rows and the columns of a list, and the look-ups of every accessor.
#pragma once

#include "records/column_header.h"
#include "records/row_array.h"
#include "values/variant.h"

#include <memory>
#include <vector>

namespace lumtex {

/// Two arrays as hosts of the control know them: each may not exist at all, and an emptied one keeps a blank
/// element, so that a flag alone tells that there are no rows, or no columns. Positions count from 0, an
/// `Index`, a `Row` and a `Column` from 1. What is not there is the failure 9.
class ListRecords {
  public:
    Long RowsCount() const { return rowsAllocated_ ? static_cast<Long>(rows_.size()) : 0; }
    Long ColumnsCount() const { return columnsAllocated_ ? static_cast<Long>(columns_.size()) : 0; }
    bool rowsExist() const { return !rows_.empty(); }
    bool columnsExist() const { return !columns_.empty(); }
    /// Whether any were added since the last `clearRows`, or `clearColumns`.
    bool hasRows() const { return rowsAllocated_; }
    bool hasColumns() const { return columnsAllocated_; }

    /// The last position; fails while the array does not exist.
    Long upperBoundOfRows() const;
    Long upperBoundOfColumns() const;

    RowRecord& recordAt(Long position);
    RowRecord& rowAt(const Variant& Index);
    void swapRows(Long one, Long other);
    /// Puts a row that shares the cells of the one at `from` in the place of that at `to`.
    void copyRow(Long from, Long to);
    /// Makes the column where its slot holds none.
    ColumnHeader& columnAt(Long position);

    struct Cell {
        Items& items;
        std::size_t index;
        ListViewItem& item() const { return items[index]; }
    };
    Cell cellAt(const Variant& Row, const Variant& Column);
    /// The cells of a row if that of `column` is among them, otherwise null. Both count from 1.
    Items* cellsOf(Long row, Long column) {
        if (row < 1 || static_cast<std::size_t>(row) > rows_.size())
            return nullptr;
        Items& cells = rows_[static_cast<std::size_t>(row) - 1].items;
        return column >= 1 && static_cast<std::size_t>(column) <= cells.count() ? &cells : nullptr;
    }

    /// An object was put into a cell here at some time; paints look for none before.
    bool mayHoldObjects() const { return mayHoldObjects_; }
    void noteObject() { mayHoldObjects_ = true; }

    /// All elements, the blank one of an emptied array too.
    RowArray& rows() { return rows_; }
    std::size_t columnSlots() const { return columns_.size(); }

    /// A row behind the last, without cells.
    void growRows();
    /// Says at which position the new column stands.
    Long growColumns();

    void clearRows();
    void clearColumns();
    /// Both arrays go, and with them what they hold.
    void release();
    bool holdsAnything() const { return rowsExist() || columnsExist(); }

  private:
    /// Fails behind the last one.
    std::size_t existing(Long position) const;

    friend class ListViewInspector; ///< how tests look inside

    RowArray rows_;
    std::vector<std::unique_ptr<ColumnHeader>> columns_;
    bool rowsAllocated_ = false;    ///< from the first row added until `clearRows`
    bool columnsAllocated_ = false; ///< from the first column added until `clearColumns`
    bool mayHoldObjects_ = false;
};

} // namespace lumtex
