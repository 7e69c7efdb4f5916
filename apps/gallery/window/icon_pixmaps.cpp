#include "icon_pixmaps.h"

#include "icons.h"
#include "worlds/qt/qt_picture.h"

namespace lumtex::gallery {

QPixmap folderPixmap() {
    return QPixmap::fromImage(qt::imageOf(folderIcon()->bitmap()));
}

QPixmap documentPixmap() {
    return QPixmap::fromImage(qt::imageOf(documentIcon()->bitmap()));
}

} // namespace lumtex::gallery
