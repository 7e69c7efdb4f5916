/// \file
/// The gallery's icons as Qt shows pictures.
#pragma once

#include <QPixmap>

namespace lumtex::gallery {

QPixmap folderPixmap();
QPixmap documentPixmap();

} // namespace lumtex::gallery
