/// \file
/// The tables of functions of the dual interfaces, as C++.
#pragma once

#include "automation/class_table.h"

#include <string>

namespace lumtex {

/// The body of a class that derives from IDispatch: one virtual function for each entry of the type library,
/// in the same order. Each hands its arguments to the class's own `getBy`, `letBy`, `setBy` or `callBy` with
/// the member's dispatch number, results behind it.
std::string dualEntries(const ClassDescription& description);

} // namespace lumtex
