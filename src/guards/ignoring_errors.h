/// \file
/// Stretches that ignore errors.
#pragma once

#include "guards/failure_of.h"

#include <utility>

namespace lumtex {

/// Runs `body` up to its first failure, which is not reported. Returns whether it ran through.
template <class Body>
bool ignoringErrors(Body&& body) {
    return !failureOf(std::forward<Body>(body)).has_value();
}

} // namespace lumtex
