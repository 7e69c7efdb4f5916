/// \file
/// Arguments of calls as the control's own values.
#pragma once

#include "values/variant.h"
#include "worlds/win32/windows_api.h"

#include <exception>

namespace lumtex::win32 {

/// A null pointer in place of a value.
class NullArgument : public std::exception {};

/// As `fromVARIANT`; throws NullArgument if `value` points to nothing.
Variant argumentFrom(const VARIANT& value);

} // namespace lumtex::win32
