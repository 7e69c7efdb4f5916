/// \file
/// A picture that cannot be painted.
#pragma once

#include "values/references/picture.h"
#include "values/runtime_error.h"

namespace lumtex::testing {

/// Each look at it fails with 481.
class BrokenPicture final : public Picture {
  public:
    Long Width() const override { throw RuntimeError(ErrorNumber::invalidPicture); }
    Long Height() const override { throw RuntimeError(ErrorNumber::invalidPicture); }
    const Bitmap& bitmap() const override { throw RuntimeError(ErrorNumber::invalidPicture); }
};

} // namespace lumtex::testing
