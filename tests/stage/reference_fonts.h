/// \file
/// The font that pictures in tests are pinned to, as a font of Windows.
#pragma once

#include "worlds/win32/windows_api.h"

#include <vector>

namespace lumtex::testing {

/// Must come before the first text is drawn. While one lives, this program has "Verdana": DejaVu Sans with
/// its heights rounded up at the size that the list begins with, as the software surface rounds them, and
/// with letters of one colour. So lists are laid out alike everywhere, and look alike on all surfaces of this
/// program.
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
