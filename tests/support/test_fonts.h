/// \file
/// The fonts that all tests draw with.
#pragma once

#include "platform/raster/font_library.h"

#include <memory>

namespace lumtex::testing {

inline std::shared_ptr<raster::FontLibrary> testFonts() {
    static const auto fonts = raster::FontLibrary::fromConfiguration(LUMTEX_TEST_DATA "/fonts/fonts.conf");
    return fonts;
}

} // namespace lumtex::testing
