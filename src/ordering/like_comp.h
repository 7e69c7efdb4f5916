/// \file
/// The modules basCompareBinary and basComparyText: one function each, a match by pattern.
#pragma once

#include "platform/runtime.h"
#include "values/types.h"

namespace lumtex::ordering {

/// Whether `value` as a whole matches `pattern` (see `LikePattern`). A faulty pattern is reported, as error
/// 93 of the function, and matches nothing.
bool LikeCompBinary(Runtime& runtime, StringView value, StringView pattern);
/// The same whatever the case of the letters.
bool LikeCompText(Runtime& runtime, StringView value, StringView pattern);

} // namespace lumtex::ordering
