/// \file
/// The place at which something fails.
#pragma once

#include "values/runtime_error.h"

namespace lumtex::testing {

/// Counts the places that are passed, and fails at one of them, or at all from there on.
class FailurePoint {
  public:
    /// The `n`th from now on, counted from 1.
    void arm(long n, bool onwards = false) {
        remaining_ = n;
        onwards_ = onwards;
        failures_ = 0;
    }
    /// Nothing fails any more. How much has.
    long disarm() {
        remaining_ = 0;
        return failures_;
    }
    bool isHere() {
        if (remaining_ == 0 || --remaining_ > 0)
            return false;
        if (onwards_)
            remaining_ = 1;
        ++failures_;
        return true;
    }
    void pass(Long number) {
        if (isHere())
            throw RuntimeError(number);
    }
    void pass(ErrorNumber error) { pass(numberOf(error)); }

  private:
    long remaining_ = 0; ///< 0: nothing fails
    bool onwards_ = false;
    long failures_ = 0;
};

} // namespace lumtex::testing
