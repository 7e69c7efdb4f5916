/// \file
/// Which parts of a line run from right to left, and in which order the parts stand beside each other.
#pragma once

#include "values/types.h"

#include <vector>

namespace lumtex::raster {

/// A part of a line that runs one way.
struct DirectedText {
    std::size_t from; ///< code unit, from 0
    std::size_t length;
    bool rightToLeft;

    bool operator==(const DirectedText&) const = default;
};

/// Whether something in a text could run from right to left: a glance at its units, for it comes before all
/// else. A text that cannot is one part that runs from left to right.
bool mayTurn(StringView text);

/// The parts of one line as they stand on the screen, leftmost first. The line as a whole runs from left to
/// right, whatever it begins with: so do the texts of a control that nobody has mirrored. Throws RuntimeError
/// 7 without memory.
std::vector<DirectedText> inVisualOrder(StringView line);

} // namespace lumtex::raster
