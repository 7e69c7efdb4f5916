/// \file
/// The memory of text arguments, handed from one call to the next.
#pragma once

#include "values/variant.h"

#include <span>

namespace lumtex::win32 {

/// A host that fills a list passes one text after another, and each needs memory only for the time of its
/// call. A call inside another one finds the memory taken and has its own.
class SpareText {
  public:
    Variant copyOf(StringView text);
    /// Nobody needs the texts among `arguments` any more.
    void takeFrom(std::span<Variant> arguments) noexcept;

  private:
    Variant kept_ = String();
};

} // namespace lumtex::win32
