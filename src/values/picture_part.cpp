#include "values/picture_part.h"

#include "values/rounding.h"

#include <algorithm>

namespace lumtex {

namespace {

/// The copy along one axis; empty where `first` is not below `last`.
struct Cut {
    Long first = 0;
    Long last = 0;
    Long targetFirst = 0;
    Long targetLast = 0;
};

Cut cut(Long start, Long extent, Long limit, Long target, Long targetExtent) {
    const std::int64_t first = std::max<std::int64_t>(start, 0);
    const std::int64_t last = std::min<std::int64_t>(std::int64_t{start} + extent, limit);
    if (first >= last)
        return {};
    const auto onTarget = [&](std::int64_t position) {
        return roundToLong(target + static_cast<Double>(position - start) * targetExtent / extent);
    };
    return {static_cast<Long>(first), static_cast<Long>(last), onTarget(first), onTarget(last)};
}

} // namespace

PicturePart picturePart(const Bitmap& picture, Point at, Point size, Point from, Point part) {
    if (size.x <= 0 || size.y <= 0 || part.x <= 0 || part.y <= 0)
        return {};
    const Cut columns = cut(from.x, part.x, picture.width, at.x, size.x);
    const Cut rows = cut(from.y, part.y, picture.height, at.y, size.y);
    return {{columns.first, rows.first, columns.last, rows.last},
            {columns.targetFirst, rows.targetFirst, columns.targetLast, rows.targetLast}};
}

} // namespace lumtex
