/// \file
/// One column.
#pragma once

#include "guards/held.h"
#include "records/enumerations.h"
#include "values/color.h"
#include "values/references/picture.h"

namespace lumtex {

/// A bag of public fields. A fresh one, made where a slot holds none, is all zero, empty and false.
struct ColumnHeader {
    bool AllowSorting = false; ///< a click on the header may sort
    String Text;
    Held<PictureRef> Icon;
    Held<PictureRef> IconHover; ///< while the mouse is over the header
    Held<PictureRef> IconDown;  ///< while the header is pressed
    cColumnHeaderAlign IconAlignment = cColumnLeft;
    Single Left = 0;  ///< twips
    Single Width = 0; ///< twips
    String Tag;
    String Key; ///< the host's; stored and saved, never used to find a column
    cColumnHeaderAlign Alignment = cColumnLeft;
    OLE_COLOR ForeColor = 0;
    OLE_COLOR ForeColorHover = 0;
    OLE_COLOR ForeColorDown = 0;
    bool CheckBoxes = false;      ///< the column's cells show check boxes
    bool AdjustItemIcons = false; ///< cell icons are scaled to ItemIconW by ItemIconH
    Single ItemIconH = 0;         ///< pixels
    Single ItemIconW = 0;         ///< pixels

    Long ItemsChecked = 0; ///< running count of the column's checked cells; no host reaches it
};

} // namespace lumtex
