/// \file
/// The surface of Windows and the software surface side by side.
#pragma once

#include "pixels.h"
#include "raster/raster_surface.h"
#include "worlds/win32/gdi_surface.h"

#include <functional>
#include <string>

#include <gtest/gtest.h>

namespace lumtex::testing {

/// Does each pixel of one picture equal the other's? A failure names the first pixels that differ.
inline ::testing::AssertionResult samePixels(const Bitmap& windows, const Bitmap& software) {
    if (windows.width != software.width || windows.height != software.height)
        return ::testing::AssertionFailure() << "sizes: Windows " << windows.width << " x " << windows.height
                                             << ", software " << software.width << " x " << software.height;
    std::size_t count = 0;
    std::string first;
    for (Long y = 0; y < windows.height; ++y) {
        for (Long x = 0; x < windows.width; ++x) {
            if (windows.at(x, y) == software.at(x, y))
                continue;
            if (++count > 8)
                continue;
            char note[80];
            std::snprintf(note,
                          sizeof note,
                          "\n  (%d, %d) Windows %06X, software %06X",
                          int{x},
                          int{y},
                          static_cast<unsigned>(windows.at(x, y) & 0xFFFFFFU),
                          static_cast<unsigned>(software.at(x, y) & 0xFFFFFFU));
            first += note;
        }
    }
    if (count == 0)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << count << " pixels differ" << first;
}

/// 40 x 30 pixels, white. Text on the software surface is made of the glyphs of Windows.
class SurfacePair : public ::testing::Test {
  protected:
    static constexpr Long width = 40;
    static constexpr Long height = 30;

    /// The same on both.
    void both(const std::function<void(Surface&)>& operation) {
        operation(windows);
        operation(software);
    }
    void clear() {
        both([](Surface& surface) { surface.letBackColor(white); });
    }
    ::testing::AssertionResult agree() { return samePixels(windows.image(), software.image()); }

    win32::GdiSurface windows{width, height, 96, 96};
    raster::RasterSurface software{width, height, raster::FontLibrary::ofSystem()};
};

} // namespace lumtex::testing
