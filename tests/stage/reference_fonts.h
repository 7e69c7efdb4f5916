/// \file
/// The font that pictures in tests are pinned to, as a font of Windows.
#pragma once

#include "platform/win32/windows_api.h"

#include <vector>

namespace lumtex::testing {

/// While one lives, this program has "Verdana": DejaVu Sans with its heights rounded up at the size that the
/// list begins with, as the software surface rounds them. So lists are laid out alike everywhere.
///
/// Throws std::runtime_error where the font cannot be had.
class ReferenceFonts {
  public:
    ReferenceFonts();
    ReferenceFonts(const ReferenceFonts&) = delete;
    ReferenceFonts& operator=(const ReferenceFonts&) = delete;
    ~ReferenceFonts();

  private:
    std::vector<HANDLE> fonts_;
};

} // namespace lumtex::testing
