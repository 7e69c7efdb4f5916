#include "drawing/draw_arrow.h"

#include "values/rounding.h"

#include <array>

namespace lumtex::drawing {

namespace {

constexpr OLE_COLOR arrowColor = 0x999999;

Point rounded(Single x, Single y) {
    return {roundToLong(x), roundToLong(y)};
}

} // namespace

void DrawArrow(Surface& surface, Byte direction, Single x, Single y) {
    std::array<Point, 3> points{};
    if (direction == 0)
        points = {rounded(x, y), rounded(x + 8, y), rounded(x + 4, y + 4)};
    else if (direction == 1)
        points = {rounded(x, y + 5), rounded(x + 8, y + 5), rounded(x + 4, y)};
    surface.letForeColor(arrowColor);
    surface.polygon(points, arrowColor);
}

} // namespace lumtex::drawing
