/// \file
/// Memory that runs out where a test says so.
#pragma once

namespace lumtex::testing {

/// Every request for memory of this program comes by here. One thread alone may use it.
class FailingMemory {
  public:
    enum class Which { thatOne, allFromThere };

    /// From now on the `n`th request, counted from 1, throws std::bad_alloc, or all from there on do. Counted
    /// are those alone for which `counts(context)` holds; it must not ask for memory itself.
    static void arm(long n, Which which, bool (*counts)(const void* context), const void* context);
    /// Memory is there again. How many requests failed.
    static long disarm();
};

} // namespace lumtex::testing
