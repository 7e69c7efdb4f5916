/// \file
/// What all controls of one thread share.
#pragma once

#include <cstddef>

namespace lumtex {

class BlockPool;
class CellStyles;
class ReleaseBin;
class UsingLocale;

/// All of it, in one place: a control lives on one thread, and no other thread sees what it shares there with
/// its neighbours. Each member belongs to the class that its comment names, and nobody else writes to it.
struct ThreadState {
    UsingLocale* innermostLocale = nullptr; ///< of `UsingLocale`
    int runningReports = 0;                 ///< of `reportError`: boxes of other threads do not silence it
    std::size_t objectsInCells = 0;         ///< of `CellExtras`

    // Made by their own `ofThread` when first asked for. Never destroyed: a control that outlives its
    // thread's end still gives its counts back and lets go of what it holds.
    ReleaseBin* releaseBin = nullptr;
    CellStyles* cellStyles = nullptr;
    BlockPool* blockPool = nullptr;

    /// Gives the calling thread's own, at every call the same one.
    using Finder = ThreadState& (*)();

    static ThreadState& ofThread() { return finder == nullptr ? own : finder(); }

    /// For a world whose system finds what belongs to a thread faster than the language does. Before anybody
    /// has asked; never taken back.
    static void letFinder(Finder find) { finder = find; }

  private:
    static constinit thread_local ThreadState own;
    static constinit inline Finder finder = nullptr;
};

} // namespace lumtex
