/// \file
/// Where the system keeps what belongs to a thread.
#pragma once

namespace lumtex::win32 {

/// From now on each thread's `ThreadState` is found by the system's own slots. GCC's threads for Windows find
/// a value of a thread behind a lock and some calls, which every access to a cell would pay. Called as the
/// program or the component starts.
void useThreadSlot();

} // namespace lumtex::win32
