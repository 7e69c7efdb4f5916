#include "values/picture_scale.h"

#include <algorithm>

namespace lumtex {

std::int64_t nearestSource(std::int64_t index, std::int64_t targetCount, std::int64_t sourceCount) {
    const auto twiceTheMiddle =
        (2 * static_cast<std::uint64_t>(index) + 1) * static_cast<std::uint64_t>(sourceCount);
    return static_cast<std::int64_t>((twiceTheMiddle - 1) / (2 * static_cast<std::uint64_t>(targetCount)));
}

PixelSpan sourceSpan(std::int64_t index, std::int64_t targetCount, Long start, std::int64_t sourceCount) {
    if (targetCount >= sourceCount) {
        const std::int64_t nearest =
            targetCount == sourceCount ? index : nearestSource(index, targetCount, sourceCount);
        const auto first = static_cast<Long>(start + nearest);
        return {first, first + 1};
    }
    const std::int64_t first = index * sourceCount / targetCount;
    const std::int64_t last = std::max(first + 1, (index + 1) * sourceCount / targetCount);
    return {static_cast<Long>(start + first), static_cast<Long>(start + last)};
}

std::uint32_t averagePixel(const Bitmap& source, PixelSpan columns, PixelSpan rows) {
    if (columns.last - columns.first == 1 && rows.last - rows.first == 1)
        return source.at(columns.first, rows.first);
    std::uint64_t sums[4] = {0, 0, 0, 0};
    for (Long y = rows.first; y < rows.last; ++y) {
        for (Long x = columns.first; x < columns.last; ++x) {
            const std::uint32_t pixel = source.at(x, y);
            for (unsigned channel = 0; channel < 4; ++channel)
                sums[channel] += (pixel >> (8 * channel)) & 0xFFU;
        }
    }
    const auto count = static_cast<std::uint64_t>(columns.last - columns.first) *
                       static_cast<std::uint64_t>(rows.last - rows.first);
    std::uint32_t result = 0;
    for (unsigned channel = 0; channel < 4; ++channel)
        result |= static_cast<std::uint32_t>((sums[channel] + count / 2) / count) << (8 * channel);
    return result;
}

} // namespace lumtex
