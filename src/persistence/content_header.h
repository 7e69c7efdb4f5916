/// \file
/// The first twelve bytes of a content file, and what they promise.
#pragma once

#include "platform/types.h"

namespace lumtex {

/// The number that every content file starts with. Readers take no notice of it.
Integer SaveVersion();

/// In the order of the file.
struct ContentHeader {
    Integer version = 0;
    Long rowCount = 0;
    Long columnCount = 0;
    bool hasItemProperties = false;
};

/// Rows that a file may announce without a byte for each, as the file of a list does that has lost its
/// columns.
constexpr Long mostRowsWithoutCells = 1048576;
/// Records that may be missing at the end of a file that was cut off.
constexpr std::int64_t mostMissingRecords = 1024;

/// Whether `remaining` bytes behind the header can be what it announces. Keeps the time and memory that a
/// file takes in proportion to its size.
bool isPossible(const ContentHeader& header, std::int64_t remaining);

} // namespace lumtex
