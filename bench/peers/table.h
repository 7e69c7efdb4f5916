/// \file
/// The rows that all peers are filled with.
#pragma once

#include "sample_rows.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumtex::bench {

constexpr int tableColumns = 5;
/// What the columns hold: a running number from 1, a name, a city, an amount with two decimals, an ISO date.
enum TableColumn : int { numberColumn, nameColumn, cityColumn, amountColumn, dateColumn };

constexpr int columnWidths[tableColumns] = {70, 200, 160, 120, 110}; ///< pixels
constexpr int screenWidth = 1280;
constexpr int screenHeight = 800;

/// All texts lie one behind the other, once in bytes and once in units of UTF-16, so that every peer is
/// handed the form that it takes. Rows and columns count from 0.
class Table {
  public:
    /// Of rows with more columns the first five.
    Table(int rows, SampleData data);

    int rows() const { return static_cast<int>(starts_.size() / tableColumns); }
    std::string_view cell(int row, int column) const;
    std::u16string_view wideCell(int row, int column) const;
    /// The cells of a row with a bar between them.
    std::u16string_view wideRow(int row) const;

  private:
    std::size_t start(int row, int column) const;
    std::size_t end(int row, int column) const;

    std::string bytes_; ///< a bar behind each text
    std::u16string units_;
    std::vector<std::uint32_t> starts_;
};

} // namespace lumtex::bench
