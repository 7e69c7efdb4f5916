/// \file
/// The icons of the gallery, 16 x 16.
#pragma once

#include "values/references/picture.h"

namespace lumtex::gallery {

PictureRef folderIcon();
PictureRef documentIcon();

} // namespace lumtex::gallery
