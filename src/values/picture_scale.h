/// \file
/// Which pixels of a picture a stretched copy shows.
#pragma once

#include "values/bitmap.h"

namespace lumtex {

/// The source pixel whose middle lies nearest to the middle of target pixel `index` of `targetCount`, the
/// lower one of two; counted from 0, as is `index`. Both counts are above 0.
std::int64_t nearestSource(std::int64_t index, std::int64_t targetCount, std::int64_t sourceCount);

/// Neighbouring pixels along one axis.
struct PixelSpan {
    Long first;
    Long last; ///< just past the end, and above `first`
};

/// The source pixels that target pixel `index` of `targetCount` stands for: the nearest one if the copy is
/// as large or larger, all those that fall on it if it is smaller. `start` is the first source pixel.
PixelSpan sourceSpan(std::int64_t index, std::int64_t targetCount, Long start, std::int64_t sourceCount);

/// Average of a block, premultiplied as its pixels are.
std::uint32_t averagePixel(const Bitmap& source, PixelSpan columns, PixelSpan rows);

} // namespace lumtex
