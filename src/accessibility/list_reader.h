/// \file
/// The way from a list to its parts, which hosts do not have.
#pragma once

#include "accessibility/element.h"
#include "bars/scroll_bar.h"
#include "model/list_view.h"

namespace lumtex::accessibility {

/// Reads and runs no code of the host, whatever it is asked. Positions beyond the ends are not there.
class ListReader {
  public:
    static ListViewCore& coreOf(lmListView& list) {
        ListViewProperties& properties = list;
        return properties;
    }

    explicit ListReader(ListViewCore& core) : core_(core) {}

    Long rows() const { return core_.records.RowsCount(); }
    Long columns() const { return core_.records.ColumnsCount(); }
    /// Cells of a row that columns stand over.
    Long cells(Long number) const;
    bool hasHeaders() const { return !core_.properties.HideColumnHeaders && columns() > 0; }
    bool hasCheckBox(Long number) const;
    bool exists(const Element& element) const;

    RowRecord& row(Long row) const { return core_.records.rows()[static_cast<std::size_t>(row) - 1]; }
    ListViewItem& cell(const Element& element) const {
        return row(element.row).items[static_cast<std::size_t>(element.column) - 1];
    }
    ColumnHeader& column(Long column) const { return core_.records.columnAt(column - 1); }
    bars::ScrollBar& bar(const Element& element) const;
    ListViewCore& core() const { return core_; }

    /// From 1, or 0: the current row, where there is one.
    Long currentRow() const;
    /// Whether a press would reach the cell.
    bool isEnabled(const Element& element) const;

  private:
    ListViewCore& core_;
};

} // namespace lumtex::accessibility
