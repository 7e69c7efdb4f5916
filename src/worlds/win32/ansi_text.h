/// \file
/// Text in the code page of the system, which files and old messages use.
#pragma once

#include "values/types.h"

namespace lumtex::win32 {

/// A character that the code page lacks becomes the system's substitute, mostly "?".
std::string ansiFrom(StringView text);
/// Never fails: bytes that mean nothing become what the system makes of them.
String textFromAnsi(std::string_view text);

} // namespace lumtex::win32
