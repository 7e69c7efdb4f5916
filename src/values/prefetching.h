/// \file
/// Fetching memory before its turn.
#pragma once

/// Stands before each function that fetches and does nothing else: GCC takes one that it does not expand
/// where it is called for a function without effect, and leaves the call out.
#define LUMTEX_PREFETCHING [[gnu::always_inline]]
