/// \file
/// Failures of automation calls, as the classic error numbers and back.
#pragma once

#include "values/runtime_error.h"
#include "worlds/win32/windows_api.h"

namespace lumtex {

/// The number that a program knows a result by: the low half of the results that carry such a number, 438 for
/// an unknown member, 13, 6, 450 and the like for refused arguments, else the result itself.
Long numberOfResult(HRESULT result);

/// The result that carries a number from 1 to 65535; other numbers are results already.
HRESULT resultOf(Long errorNumber);

/// Throws the RuntimeError for a call that failed. `details` is what the object told with DISP_E_EXCEPTION;
/// its texts are freed.
[[noreturn]] void throwCallFailure(HRESULT result, EXCEPINFO& details);

/// Frees what a failed call told about itself.
void freeTexts(EXCEPINFO& details);

/// Throws for a result that is a failure.
void demand(HRESULT result);

} // namespace lumtex
