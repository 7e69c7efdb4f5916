/// \file
/// The list's colours by role and style. Asked anew at each use: no palette is kept.
#pragma once

#include "records/properties.h"

namespace lumtex::drawing {

enum class ColorRole : Byte {
    headerFace,
    headerFoot1,
    headerFoot2,
    headerFoot3,
    headerDividerDark,
    headerDividerLight,
    headerHoverFace,
    headerDownFace,
    headerDownOuter,
    headerDownMiddle,
    headerDownInner,
    emptyFieldFace,
    emptyFieldFoot1,
    emptyFieldFoot2,
    emptyFieldFoot3,
    selection,
    border,
    // The hover bar of the Olive style; the other styles have a bitmap or nothing there.
    oliveBarDark,
    oliveBarLight,
    oliveBarCorner,
};

/// The colour of a role in the style that holds now. A style outside the enumeration counts as custom for the
/// header and its empty field, and gives 0 for selection and border.
OLE_COLOR colorOf(ColorRole role, const Properties& properties);

} // namespace lumtex::drawing
