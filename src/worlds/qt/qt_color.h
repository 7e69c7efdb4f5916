/// \file
/// Colours of ours as colours of Qt.
#pragma once

#include "raster/system_colors.h"
#include "values/color.h"

#include <QColor>

namespace lumtex::qt {

/// A system colour as the software surface shows it.
inline QColor toQColor(OLE_COLOR color) {
    if (!isSystemColor(color))
        return {redOf(color), greenOf(color), blueOf(color)};
    const unsigned index = systemColorIndex(color);
    return QColor::fromRgb(index < raster::systemColors.size() ? raster::systemColors[index] : 0U);
}

} // namespace lumtex::qt
