/// \file
/// Fonts are taken over as copies, so that a host's later changes do not reach the control.
#pragma once

#include "values/references/font.h"

namespace lumtex {

/// Null for null, otherwise a new object with the font's attributes.
inline FontRef CloneFont(const FontRef& font) {
    return font ? font->Clone() : nullptr;
}

} // namespace lumtex
