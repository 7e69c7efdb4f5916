/// \file
/// The fonts that all tests draw with.
#pragma once

#include "folders.h"
#include "raster/font_library.h"

#include <memory>

namespace lumtex::testing {

inline std::shared_ptr<raster::FontLibrary> testFonts() {
    static const auto fonts = raster::FontLibrary::fromConfiguration(testFolder() + "/fonts/fonts.conf");
    return fonts;
}

} // namespace lumtex::testing
