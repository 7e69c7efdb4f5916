/// Lines one pixel wide.
#include "platform/raster/canvas.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace lumtex::raster {

namespace {

using Wide = std::int64_t;

constexpr Long maximum = 0x7FFFFFFF;

/// Steps along the longer axis, clipped to those that can be seen, so that a line of any length is cheap.
struct Steps {
    Wide first;
    Wide last; ///< just past the end
};

Steps visibleSteps(Wide start, int direction, Wide count, Wide size) {
    const Wide first = direction > 0 ? -start : start - (size - 1);
    const Wide last = direction > 0 ? size - start : start + 1;
    return {std::max<Wide>(first, 0), std::min(last, count)};
}

} // namespace

void drawLine(const Canvas& canvas, Point from, Point to, Pixel color) {
    const Wide dx = Wide{to.x} - from.x;
    const Wide dy = Wide{to.y} - from.y;
    const Wide count = std::max(std::abs(dx), std::abs(dy));
    if (count == 0)
        return;
    // Most lines are upright or level, and those are areas one pixel wide.
    if (dx == 0 || dy == 0) {
        if (from.x == maximum || from.y == maximum)
            return;
        const Long left = dx < 0 ? to.x + 1 : from.x;
        const Long top = dy < 0 ? to.y + 1 : from.y;
        const Long right = dx > 0 ? to.x : from.x + 1;
        const Long bottom = dy > 0 ? to.y : from.y + 1;
        fillArea(canvas, {left, top, right, bottom}, color);
        return;
    }
    const bool alongX = std::abs(dx) >= std::abs(dy);
    const Wide majorStart = alongX ? from.x : from.y;
    const Wide minorStart = alongX ? from.y : from.x;
    const Wide minorTravel = alongX ? dy : dx;
    const int direction = (alongX ? dx : dy) > 0 ? 1 : -1;
    const Wide majorSize = alongX ? canvas.width : canvas.height;
    const Wide minorSize = alongX ? canvas.height : canvas.width;
    const double slope = static_cast<double>(minorTravel) / static_cast<double>(count);

    const Steps steps = visibleSteps(majorStart, direction, count, majorSize);
    for (Wide step = steps.first; step < steps.last; ++step) {
        const double offset = std::fabs(slope) * static_cast<double>(step);
        const auto shift = static_cast<Wide>(std::floor(offset + 0.5));
        const Wide minor = minorStart + (minorTravel < 0 ? -shift : shift);
        if (minor < 0 || minor >= minorSize)
            continue;
        const Wide major = majorStart + direction * step;
        const auto x = static_cast<Long>(alongX ? major : minor);
        const auto y = static_cast<Long>(alongX ? minor : major);
        canvas.row(y)[x] = color;
    }
}

} // namespace lumtex::raster
