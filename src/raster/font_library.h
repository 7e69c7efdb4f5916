/// \file
/// The fonts that text is drawn with.
#pragma once

#include "raster/typeface.h"
#include "values/references/font.h"

#include <filesystem>
#include <memory>

namespace lumtex::raster {

/// Finds font files by the six attributes. A face that is not there is replaced by the nearest one.
class FontLibrary : public std::enable_shared_from_this<FontLibrary> {
  public:
    /// The fonts of this machine and user.
    static std::shared_ptr<FontLibrary> ofSystem();
    /// Only the fonts that a fontconfig file names, so that pictures do not depend on the machine.
    static std::shared_ptr<FontLibrary> fromConfiguration(const std::filesystem::path& file);

    FontLibrary(const FontLibrary&) = delete;
    FontLibrary& operator=(const FontLibrary&) = delete;
    ~FontLibrary();

    /// Size is in points, at 96 pixels per inch; it is rounded to whole pixels and kept between 1 and 1000.
    std::shared_ptr<Typeface> typeface(const FontSpec& font);

    struct Implementation;
    Implementation& implementation() { return *implementation_; }

  private:
    explicit FontLibrary(std::unique_ptr<Implementation> implementation);

    std::unique_ptr<Implementation> implementation_;
};

} // namespace lumtex::raster
