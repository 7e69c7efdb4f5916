/// \file
/// Asking a statement for the number it fails with.
#pragma once

#include "values/runtime_error.h"

#include <gtest/gtest.h>

namespace lumtex {

/// What `errorNumberOf` gives for a statement that did not fail.
constexpr Long noError = 0;

template <class Statement>
Long errorNumberOf(Statement&& statement) {
    try {
        statement();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return noError;
}

} // namespace lumtex
