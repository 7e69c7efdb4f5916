/// \file
/// The first twelve bytes of a content file, and what they promise.
#pragma once

#include "values/types.h"

namespace lumtex::content {

/// The number that every content file starts with. Readers take no notice of it.
Integer SaveVersion();

/// In the order of the file.
struct ContentHeader {
    Integer version = 0;
    Long rowCount = 0;
    Long columnCount = 0;
    bool hasItemProperties = false;
};

/// Cells that a file may announce and not hold.
constexpr std::int64_t mostMissingCells = 4'000'000;
/// Rows of a file without columns, as a list leaves it that has lost its own, and the cells of the loading
/// list that they become: no byte stands for them, so that nothing distinguishes a damaged count from a true
/// one but its size.
constexpr std::int64_t mostRowsWithoutRecords = 4'000'000;
constexpr std::int64_t mostCellsWithoutRecords = std::int64_t{1} << 24U;

/// Counts are taken as they stand. False for those alone that `remaining` bytes behind the header cannot hold
/// and that would starve the machine: by the cells that they announce, or that a list of `listColumns` would
/// get. No list writes such a file.
bool isPossible(const ContentHeader& header, std::int64_t remaining, Long listColumns);

} // namespace lumtex::content
