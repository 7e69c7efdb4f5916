/// \file
/// Failures of automation calls, as the classic error numbers and back.
#pragma once

#include "values/runtime_error.h"
#include "worlds/win32/windows_api.h"

namespace lumtex::win32 {

/// The number that a program knows a result by: the low half of the results that carry such a number, 438 for
/// an unknown member, 13, 6, 450 and the like for refused arguments, else the result itself.
Long numberOfResult(HRESULT result);

/// The result that carries a number from 1 to 65535; other numbers are results already.
HRESULT resultOf(Long errorNumber);

/// What a failed call says about itself. Owns the texts.
class CallDetails {
  public:
    CallDetails() = default;
    CallDetails(const CallDetails&) = delete;
    CallDetails& operator=(const CallDetails&) = delete;
    ~CallDetails() { clear(); }

    /// Where a call stores its own, in place of those that were here.
    EXCEPINFO* out() {
        clear();
        return &info_;
    }
    EXCEPINFO& get() { return info_; }

  private:
    void clear();

    EXCEPINFO info_{};
};

/// Throws the RuntimeError for a call that failed. `details` is what the object said with DISP_E_EXCEPTION.
[[noreturn]] void throwCallFailure(HRESULT result, CallDetails& details);

/// Throws for a result that is a failure.
void demand(HRESULT result);

} // namespace lumtex::win32
