/// \file
/// Who makes the timers of a world tick.
#pragma once

#include "values/types.h"
#include "worlds/win32/windows_api.h"

namespace lumtex::win32 {

/// A tick is a WM_TIMER with the number of its run. Serves one thread.
class TickSource {
  public:
    TickSource() = default;
    TickSource(const TickSource&) = delete;
    TickSource& operator=(const TickSource&) = delete;
    virtual ~TickSource() = default;

    /// From now on `window` gets a tick each `milliseconds`, which are more than 0. False if there is no
    /// timer left.
    virtual bool start(HWND window, UINT_PTR run, Long milliseconds) = 0;
    /// A tick that is on its way already may still come.
    virtual void stop(HWND window, UINT_PTR run) = 0;
    /// Whether ticks may come behind input that was there after their time, as those of the system do: it
    /// hands them out last.
    virtual bool mayBeLate() const = 0;
};

/// The timers of the system. One object for all threads.
TickSource& systemTicks();

} // namespace lumtex::win32
