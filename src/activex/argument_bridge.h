/// \file
/// Arguments of calls by dispatch number, to and from the control's own values.
#pragma once

#include "platform/variant.h"
#include "platform/win32/variant_bridge.h"

namespace lumtex {

/// A pointer where a value should be, that leads nowhere.
class NullArgument : public std::exception {};

/// As `fromVARIANT`; throws NullArgument where `value` points to nothing.
Variant argumentFrom(const VARIANT& value);

/// Puts what a call left in an argument to where the caller keeps it; nothing for one that came by value.
/// Throws the RuntimeError of a value that does not convert.
void writeBack(const Variant& value, VARIANT& argument);

} // namespace lumtex
