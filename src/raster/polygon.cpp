/// Filled polygons.
#include "raster/canvas.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace lumtex::raster {

namespace {

/// The first whole column at or right of where the edge from `upper` to `lower` crosses row `y`. Whole
/// numbers throughout: the distances are below 2^32, so their product fits.
std::int64_t crossing(Point upper, Point lower, Long y) {
    const std::int64_t run = std::int64_t{lower.x} - upper.x;
    const auto height = static_cast<std::uint64_t>(std::int64_t{lower.y} - upper.y);
    const auto depth = static_cast<std::uint64_t>(std::int64_t{y} - upper.y);
    if (run < 0)
        return upper.x - static_cast<std::int64_t>(depth * static_cast<std::uint64_t>(-run) / height);
    const std::uint64_t product = depth * static_cast<std::uint64_t>(run);
    return upper.x + static_cast<std::int64_t>(product / height) + (product % height != 0 ? 1 : 0);
}

/// Puts the crossings of row `y` into `columns`, in ascending order, and returns how many there are.
std::size_t crossings(std::span<const Point> points, Long y, std::span<std::int64_t> columns) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        Point upper = points[i];
        Point lower = points[i + 1 == points.size() ? 0 : i + 1];
        if (upper.y > lower.y)
            std::swap(upper, lower);
        // An edge owns its upper end, not its lower one.
        if (y >= upper.y && y < lower.y)
            columns[count++] = crossing(upper, lower, y);
    }
    std::sort(columns.begin(), columns.begin() + static_cast<std::ptrdiff_t>(count));
    return count;
}

} // namespace

void fillPolygon(const Canvas& canvas, std::span<const Point> points, Pixel color) {
    if (points.size() < 3)
        return;
    const auto [highest, lowest] =
        std::minmax_element(points.begin(), points.end(), [](Point a, Point b) { return a.y < b.y; });
    const Long top = std::max<Long>(highest->y, 0);
    const Long bottom = std::min(lowest->y, canvas.height);

    // A repaint draws triangles, and it must not allocate.
    std::array<std::int64_t, 16> few{};
    std::vector<std::int64_t> many(points.size() > few.size() ? points.size() : 0);
    const std::span<std::int64_t> columns = many.empty() ? std::span<std::int64_t>(few) : many;
    const auto clamped = [&](std::int64_t x) {
        return static_cast<Long>(std::clamp<std::int64_t>(x, 0, canvas.width));
    };
    for (Long y = top; y < bottom; ++y) {
        const std::size_t count = crossings(points, y, columns);
        for (std::size_t i = 0; i + 1 < count; i += 2)
            fillArea(canvas, {clamped(columns[i]), y, clamped(columns[i + 1]), y + 1}, color);
    }
}

} // namespace lumtex::raster
