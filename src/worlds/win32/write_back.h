/// \file
/// What a call leaves in its arguments.
#pragma once

#include "values/variant.h"
#include "worlds/win32/windows_api.h"

namespace lumtex::win32 {

/// Puts what a call left in an argument to where the caller keeps it, converted to the caller's type; nothing
/// for one that came by value, or that was never taken. Drops what was there. Throws the RuntimeError of a
/// value that does not convert, and 13 for arrays and records. Texts are written as `locale` has them.
void writeBack(const Variant& value, VARIANT& argument, LCID locale = LOCALE_USER_DEFAULT);

} // namespace lumtex::win32
