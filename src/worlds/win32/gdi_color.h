/// \file
/// Colours as the system's drawing routines take them.
#pragma once

#include "values/color.h"
#include "worlds/win32/windows_api.h"

namespace lumtex::win32 {

/// A system colour is looked up in the user's scheme as it is now; one without a number there is black.
inline COLORREF colorRef(OLE_COLOR color) {
    if (isSystemColor(color))
        return GetSysColor(static_cast<int>(systemColorIndex(color)));
    return RGB(redOf(color), greenOf(color), blueOf(color));
}

} // namespace lumtex::win32
