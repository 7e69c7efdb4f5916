/// \file
/// Owners for the handles of the font libraries; for the files that talk to those libraries alone.
#pragma once

#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include FT_FREETYPE_H
#include <memory>

#include <hb.h>

namespace lumtex::raster {

template <auto destroy>
struct Destroyer {
    template <class T>
    void operator()(T* handle) const {
        destroy(handle);
    }
};

using FcConfigHandle = std::unique_ptr<FcConfig, Destroyer<FcConfigDestroy>>;
using FcPatternHandle = std::unique_ptr<FcPattern, Destroyer<FcPatternDestroy>>;
using FcCharSetHandle = std::unique_ptr<FcCharSet, Destroyer<FcCharSetDestroy>>;
using FtLibraryHandle = std::unique_ptr<FT_LibraryRec_, Destroyer<FT_Done_FreeType>>;
using FtFaceHandle = std::unique_ptr<FT_FaceRec_, Destroyer<FT_Done_Face>>;
using HbFontHandle = std::unique_ptr<hb_font_t, Destroyer<hb_font_destroy>>;
using HbBufferHandle = std::unique_ptr<hb_buffer_t, Destroyer<hb_buffer_destroy>>;

} // namespace lumtex::raster
