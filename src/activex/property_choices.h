/// \file
/// Properties without parameters as designers show them, by the table of members.
#pragma once

#include "automation/call_by_name.h"
#include "automation/enumeration_table.h"

#include <optional>

namespace lumtex::win32 {

/// The property of the list with that dispatch number; null where there is none, or one with parameters.
const automation::Member* plainProperty(Long number);
/// Null for a name that no such property has.
const automation::Member* plainProperty(StringView name);

/// What the property may be; null where its type is no enumeration.
const automation::Enumeration* choicesOf(const automation::Member& property);
/// "0 - cXPBlue"
String choiceText(const automation::Enumerator& choice);

} // namespace lumtex::win32
