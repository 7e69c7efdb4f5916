/// \file
/// Sorting at once: over keys that were read beforehand.
#pragma once

#include "ordering/pieces.h"
#include "records/enumerations.h"
#include "records/row_array.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace lumtex::ordering {

/// Whether anything is left of a text whose outer blanks are cut.
bool holdsMoreThanBlanks(const CompactText& text);

/// Finds the order that `SortStepwise` leaves, without touching the rows: element k is the 0-based
/// position from which row k comes. `cell` counts from 0, `type` is one of the three types. An empty order:
/// no row holds more than blanks there, and such a column is not sorted.
///
/// None if that sort would report anything and `silent` is False: then the host's code may run in
/// the middle, and only the statements themselves do what is due. The order is the same for one thread and
/// for two. Throws std::bad_alloc.
std::optional<std::vector<std::uint32_t>> orderAtOnce(
    const RowArray& rows, std::size_t cell, cSortType type, cSortMode order, bool silent, Hands hands);

} // namespace lumtex::ordering
