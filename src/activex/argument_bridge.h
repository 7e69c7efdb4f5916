/// \file
/// Arguments of calls as the control's own values.
#pragma once

#include "values/variant.h"
#include "worlds/win32/windows_api.h"

#include <exception>

namespace lumtex {

/// A pointer where a value should be, that leads nowhere.
class NullArgument : public std::exception {};

/// As `fromVARIANT`; throws NullArgument where `value` points to nothing.
Variant argumentFrom(const VARIANT& value);

} // namespace lumtex
