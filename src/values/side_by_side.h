/// \file
/// Work that two threads do at the same time.
#pragma once

#include <cstddef>
#include <functional>

namespace lumtex {

/// How many threads share a piece of work.
enum class Hands : bool { one, two };

/// Two, where a walk over so many rows is worth it and the machine has a processor for each.
Hands handsFor(std::size_t rows);

/// Runs `here` on the calling thread and `there` on another one, which ends before this returns. Where no
/// thread is to be had, `there` runs behind `here`.
///
/// `there` must not ask for what belongs to a thread (styles, the pool of blocks, the current locale), nor
/// touch anything of the host's. Throws what `here` threw, else what `there` did.
void sideBySide(const std::function<void()>& here, const std::function<void()>& there);

} // namespace lumtex
