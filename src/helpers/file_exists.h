/// \file
/// Is there a file?
#pragma once

#include "platform/files.h"

namespace lumtex {

/// Also for a folder, and for a pattern with "*" or "?" that matches anything. False for the empty text.
bool FileExists(Files& files, StringView sFile);

} // namespace lumtex
