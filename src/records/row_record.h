/// \file
/// One row: its cells, its flags, and where the last paint pass put it.
#pragma once

#include "records/enumerations.h"
#include "records/items.h"

namespace lumtex {

/// A plain value; a copy shares the cells. The fields start as an element of a fresh array has them.
struct RowRecord {
    Items items;
    Single Height = 0; ///< pixels, as the last pass that reached the row measured it
    Single Top = 0;    ///< pixels on the control's surface, as that pass placed it
    cTextPosition TextPosition = cTextPosTop;
    bool Selected = false;
    bool Enabled = false;
    bool Checked = false;
};

static_assert(sizeof(RowRecord) <= 24);

} // namespace lumtex
