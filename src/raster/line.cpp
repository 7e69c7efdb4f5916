/// Lines one pixel wide.
#include "raster/canvas.h"

#include <algorithm>
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

    const Steps steps = visibleSteps(majorStart, direction, count, majorSize);
    if (steps.first >= steps.last)
        return;
    // Both factors are below 2^32, so whole numbers carry even the longest line exactly.
    const auto length = static_cast<std::uint64_t>(count);
    const auto climb = static_cast<std::uint64_t>(std::abs(minorTravel));
    const std::uint64_t travelled = climb * static_cast<std::uint64_t>(steps.first);
    auto shift = static_cast<Wide>(travelled / length);
    std::uint64_t rest = travelled % length;
    for (Wide step = steps.first; step < steps.last; ++step) {
        // Halfway between two pixels the upper or left one is set, whichever way the line runs.
        const bool down = minorTravel > 0;
        const Wide nearest = shift + ((down ? 2 * rest > length : 2 * rest >= length) ? 1 : 0);
        const Wide minor = minorStart + (down ? nearest : -nearest);
        rest += climb;
        if (rest >= length) {
            rest -= length;
            ++shift;
        }
        if (minor < 0 || minor >= minorSize)
            continue;
        const Wide major = majorStart + direction * step;
        const auto x = static_cast<Long>(alongX ? major : minor);
        const auto y = static_cast<Long>(alongX ? minor : major);
        canvas.row(y)[x] = color;
        canvas.note({x, y, x + 1, y + 1});
    }
}

} // namespace lumtex::raster
