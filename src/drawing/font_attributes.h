/// \file
/// Default fonts of the list: taken over as copies, so that a host's later changes do not reach the control,
/// and read attribute by attribute.
#pragma once

#include "guards/held.h"
#include "values/references/font.h"
#include "values/runtime_error.h"

namespace lumtex::drawing {

/// Hands what `font` holds to `take`. Its six attributes are read by as many statements, each of which fails
/// with 91 if there is no font. Host code at the report of one may set a font: the statement after it
/// takes that.
///
/// `statement` runs one statement and says whether it succeeded.
template <class Statement, class Take>
void readFontAttributes(const Held<FontRef>& font, Statement statement, Take take) {
    constexpr int attributes = 6;
    for (int attribute = 0; attribute < attributes; ++attribute) {
        // Nobody can look between the attributes of a font that is there, so they come at once.
        const bool taken = statement([&] {
            if (!font)
                throw RuntimeError(ErrorNumber::objectVariableNotSet);
            take(font->spec);
        });
        if (taken)
            return;
    }
}

/// Null for null, otherwise a new object with the font's attributes.
inline FontRef CloneFont(const FontRef& font) {
    return font ? font->Clone() : nullptr;
}

} // namespace lumtex::drawing
