/// \file
/// UTF-8 for files and logs, UTF-16 everywhere else.
#pragma once

#include "platform/types.h"

namespace lumtex {

/// Unpaired surrogates become U+FFFD.
std::string toUtf8(StringView text);

/// Malformed bytes become U+FFFD, one for each maximal bad sequence.
String fromUtf8(std::string_view text);

} // namespace lumtex
