/// \file
/// Fonts of the system, made from the six attributes.
#pragma once

#include "values/references/font.h"
#include "worlds/win32/windows_api.h"

#include <memory>

namespace lumtex::win32 {

/// Owns a font of the system.
class GdiFont {
  public:
    explicit GdiFont(HFONT font) : font_(font) {}
    GdiFont(const GdiFont&) = delete;
    GdiFont& operator=(const GdiFont&) = delete;
    ~GdiFont() { DeleteObject(font_); }

    HFONT handle() const { return font_; }

  private:
    HFONT font_;
};

/// The font for these attributes at `pixelsPerInch`; the system picks the nearest face it has. The height is
/// rounded to whole pixels and kept between 1 and 1000. Some fonts are kept and shared by all callers, so
/// that going back and forth between a few is cheap. May be called from any thread.
std::shared_ptr<const GdiFont> gdiFont(const FontSpec& font, Long pixelsPerInch);

} // namespace lumtex::win32
