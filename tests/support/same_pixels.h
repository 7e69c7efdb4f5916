/// \file
/// Two pictures side by side, the second one the software surface's.
#pragma once

#include "values/bitmap.h"

#include <cstdio>
#include <string>

#include <gtest/gtest.h>

namespace lumtex::testing {

/// Does each pixel of one picture equal the other's? A failure names the first pixels that differ.
inline ::testing::AssertionResult samePixels(const Bitmap& shown, const Bitmap& software) {
    if (shown.width != software.width || shown.height != software.height)
        return ::testing::AssertionFailure() << "sizes: shown " << shown.width << " x " << shown.height
                                             << ", software " << software.width << " x " << software.height;
    std::size_t count = 0;
    std::string first;
    for (Long y = 0; y < shown.height; ++y) {
        for (Long x = 0; x < shown.width; ++x) {
            if (shown.at(x, y) == software.at(x, y))
                continue;
            if (++count > 8)
                continue;
            char note[80];
            std::snprintf(note,
                          sizeof note,
                          "\n  (%d, %d) shown %06X, software %06X",
                          int{x},
                          int{y},
                          static_cast<unsigned>(shown.at(x, y) & 0xFFFFFFU),
                          static_cast<unsigned>(software.at(x, y) & 0xFFFFFFU));
            first += note;
        }
    }
    if (count == 0)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << count << " pixels differ" << first;
}

} // namespace lumtex::testing
