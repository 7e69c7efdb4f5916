/// \file
/// The pictures of the about box.
#pragma once

#include "values/references/picture.h"

namespace lumtex::about {

/// Drawn once from shapes, so that they are the same in every world, whatever fonts it has.
struct AboutArtwork {
    PictureRef background; ///< sets the size of the form
    PictureRef title;      ///< transparent around the letters
    PictureRef help;       ///< a round button, transparent around it
    PictureRef hand;       ///< a pointer

    static AboutArtwork standard();
};

} // namespace lumtex::about
