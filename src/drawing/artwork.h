/// \file
/// The pictures that come with the list.
#pragma once

#include "values/references/picture.h"

#include <array>

namespace lumtex::drawing {

struct ListViewArtwork {
    /// 13 x 13; Index 1 is unchecked, 2 is checked; 0 is empty because these pictures are numbered from 1.
    std::array<PictureRef, 3> img;
    std::array<PictureRef, 3> imgd;   ///< the same, disabled
    std::array<PictureRef, 4> imgCol; ///< pieces of the hover bar: left cap, two stamps, right cap
    PictureRef imgDefault;            ///< the strip of 16 x 3 from which the pieces are cut by default
    PictureRef imgResize;             ///< 32 x 32; the cursor while a column is resized

    /// Shared by all lists of the process; drawn once from the rows of characters in the source.
    static const ListViewArtwork& standard();
};

} // namespace lumtex::drawing
