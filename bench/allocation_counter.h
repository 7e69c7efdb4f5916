/// \file
/// Counts what the program takes from the heap.
#pragma once

#include <cstdint>

/// How often `operator new` was called so far, in all of the program.
std::int64_t allocations();
