/// \file
/// Which pages of the reference belong together.
#pragma once

#include "values/types.h"

#include <span>

namespace lumtex::automation {

/// Members of the list and events that serve one purpose: each points at all the others.
struct Family {
    std::span<const StringView> members;
    std::span<const StringView> events;
};

std::span<const Family> families();

} // namespace lumtex::automation
