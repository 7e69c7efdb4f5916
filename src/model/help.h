/// \file
/// What is said of a member, an event, an enumeration or a class, in two languages.
#pragma once

#include "values/text.h"

namespace lumtex {

/// One line each, that ends with a full stop; both say the same. The reference pages and the header for hosts
/// in C++ take the English one, the type library the German one, of whose letters the code page 1252 has all.
struct Help {
    StringView english;
    StringView german;
};

} // namespace lumtex
