/// \file
/// Colours of cells as the content file has them.
#pragma once

#include "platform/runtime.h"

namespace lumtex::content {

/// What the file holds for a colour that painting decides, "def" in the list.
constexpr Long codeOfDefaultColor = 999999999;

/// The code of a colour that was turned into text: for "def" its own, else the number, or white for any other
/// text. A number that no Long holds is reported and gives 0.
Long GetCorrectColor(Runtime& runtime, StringView text);

/// "def" for its code; any other number is the colour itself.
Variant HTML2VBColor(Long value);

} // namespace lumtex::content
