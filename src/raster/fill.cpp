/// Filled areas.
#include "raster/canvas.h"

#include <algorithm>

namespace lumtex::raster {

Rect intersection(const Rect& a, const Rect& b) {
    return {std::max(a.Left, b.Left),
            std::max(a.Top, b.Top),
            std::min(a.Right, b.Right),
            std::min(a.Bottom, b.Bottom)};
}

void fillArea(const Canvas& canvas, const Rect& area, Pixel color) {
    const Rect visible = intersection(area, canvas.bounds());
    if (visible.Left >= visible.Right)
        return;
    canvas.note(visible);
    for (Long y = visible.Top; y < visible.Bottom; ++y)
        std::fill(canvas.row(y) + visible.Left, canvas.row(y) + visible.Right, color);
}

} // namespace lumtex::raster
