/// \file
/// Catching what a statement threw, as a run-time error with its number.
#pragma once

#include "platform/runtime_error.h"

#include <new>
#include <optional>
#include <stdexcept>

namespace lumtex {

/// Runs `body`; its failure, or none. Memory that ran out counts as error 7.
template <class Body>
std::optional<RuntimeError> failureOf(Body&& body) {
    try {
        body();
        return std::nullopt;
    } catch (const RuntimeError& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return RuntimeError(outOfMemory);
    } catch (const std::length_error&) {
        return RuntimeError(outOfMemory);
    }
}

} // namespace lumtex
