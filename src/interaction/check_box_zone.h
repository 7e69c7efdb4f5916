/// \file
/// Where in a cell a press means its check box.
#pragma once

#include "records/enumerations.h"
#include "values/types.h"

#include <optional>

namespace lumtex {

/// Both ends included; pixels of the surface.
struct CheckBoxZone {
    Double low = 0;
    Double high = 0;

    bool contains(Single at) const { return at >= low && at <= high; }
};

/// Across a cell that starts at `left`, is `width` wide, and has its icon placed by `alignment`. `boxWidth`
/// is the picture's width, `shift` the pixels by which the list is scrolled sideways. None for an alignment
/// that is not known.
constexpr std::optional<CheckBoxZone>
checkBoxZone(cItemAlign alignment, Double left, Double width, Long boxWidth, Long shift) {
    constexpr Double margin = 5;
    const Double origin = left - shift + 1;
    switch (alignment) {
    case cItemLeft:
        return CheckBoxZone{origin + margin, origin + margin + boxWidth};
    case cItemCenter:
        return CheckBoxZone{origin + (width - boxWidth) / 2, origin + (width - boxWidth) / 2 + boxWidth};
    case cItemRight:
        // Wanted: five pixels wider than the picture, up to the cell's right edge.
        return CheckBoxZone{origin + width - margin - boxWidth, origin + width};
    }
    return std::nullopt;
}

/// Down a row that starts at `top`.
constexpr CheckBoxZone checkBoxRows(Double top, Long boxHeight) {
    constexpr Double margin = 2;
    return {top + margin, top + margin + boxHeight};
}

} // namespace lumtex
