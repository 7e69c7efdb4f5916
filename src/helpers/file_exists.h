/// \file
/// Is there a file?
#pragma once

#include "platform/runtime.h"

namespace lumtex {

/// Also for a folder, and for a pattern with "*" or "?" that matches anything. False for the empty text.
bool FileExists(Runtime& runtime, StringView sFile);

} // namespace lumtex
