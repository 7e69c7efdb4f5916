/// \file
/// Catching what a statement threw: as a run-time error with its number, or to ignore it.
#pragma once

#include "values/runtime_error.h"

#include <exception>
#include <optional>
#include <utility>

namespace lumtex {

/// The run-time error that a caught exception stands for: itself, or 7 if memory ran out or a text grew
/// past its largest length. Anything else is no failure of a statement but a fault of the program, and goes
/// on its way: call this only while handling `caught`.
RuntimeError failureFrom(const std::exception& caught);

/// The same for what a host's handler threw: any other exception of its is error 440 with the exception's
/// text.
RuntimeError failureOfHandler(const std::exception& caught);

/// Runs `body`; returns its failure, if there was one.
template <class Body>
std::optional<RuntimeError> failureOf(Body&& body) {
    try {
        body();
        return std::nullopt;
    } catch (const std::exception& caught) {
        return failureFrom(caught);
    }
}

/// Runs `body` up to its first failure, which is not reported. Returns whether it ran through.
template <class Body>
bool ignoringErrors(Body&& body) {
    return !failureOf(std::forward<Body>(body)).has_value();
}

} // namespace lumtex
