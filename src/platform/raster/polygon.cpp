/// Filled polygons.
#include "platform/raster/canvas.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace lumtex::raster {

void fillPolygon(const Canvas& canvas, std::span<const Point> points, Pixel color) {
    if (points.size() < 3)
        return;
    const auto [lowest, highest] =
        std::minmax_element(points.begin(), points.end(), [](Point a, Point b) { return a.y < b.y; });
    const Long top = std::max<Long>(lowest->y, 0);
    const Long bottom = std::min(highest->y, canvas.height);
    // Crossings of one row; few enough for nearly every polygon to stay on the stack of a small vector's
    // reserve.
    std::vector<double> crossings;
    crossings.reserve(points.size());
    for (Long y = top; y < bottom; ++y) {
        crossings.clear();
        for (std::size_t i = 0; i < points.size(); ++i) {
            Point a = points[i];
            Point b = points[(i + 1) % points.size()];
            if (a.y > b.y)
                std::swap(a, b);
            // An edge owns its upper end, not its lower one.
            if (y < a.y || y >= b.y)
                continue;
            const double part =
                (static_cast<double>(y) - a.y) / (static_cast<double>(b.y) - static_cast<double>(a.y));
            crossings.push_back(a.x + part * (static_cast<double>(b.x) - static_cast<double>(a.x)));
        }
        std::sort(crossings.begin(), crossings.end());
        for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
            const auto clamped = [&](double x) {
                return static_cast<Long>(std::clamp(std::ceil(x), 0.0, static_cast<double>(canvas.width)));
            };
            fillArea(canvas, {clamped(crossings[i]), y, clamped(crossings[i + 1]), y + 1}, color);
        }
    }
}

} // namespace lumtex::raster
