/// \file
/// The ten colours that travel from the list to its bars in a bag.
#pragma once

#include "records/properties.h"
#include "values/color.h"

#include <array>

namespace lumtex::bars {

struct ScrollColor {
    const char16_t* name;
    OLE_COLOR Properties::*field;
    OLE_COLOR bagDefault; ///< a value equal to it is left out of the bag
};

/// In the order in which they are written.
// Wanted: the bag's default for ScrollBackColor differs from the list's own start value.

// clang-format off
constexpr auto scrollColors = std::to_array<ScrollColor>({
    {u"ScrollBackColor",     &Properties::ScrollBackColor,     white},
    {u"ScrollArrows",        &Properties::ScrollArrows,        black},
    {u"ScrollButtons",       &Properties::ScrollButtons,       buttonFace},
    {u"ScrollBar",           &Properties::ScrollBar,           buttonFace},
    {u"ScrollArrowsDown",    &Properties::ScrollArrowsDown,    black},
    {u"ScrollButtonsDown",   &Properties::ScrollButtonsDown,   buttonFace},
    {u"ScrollBarDown",       &Properties::ScrollBarDown,       buttonFace},
    {u"ScrollArrowsHover",   &Properties::ScrollArrowsHover,   black},
    {u"ScrollButtonsHover",  &Properties::ScrollButtonsHover,  buttonFace},
    {u"ScrollBarHover",      &Properties::ScrollBarHover,      buttonFace},
});
// clang-format on

} // namespace lumtex::bars
