/// \file
/// The message loop of the host, and the boxes that run it.
#pragma once

#include "values/types.h"

namespace lumtex {

/// What a message box shows beside its text.
enum class BoxStyle { plain, critical };

/// The waiting events of the interface thread.
class EventQueue {
  public:
    EventQueue() = default;
    EventQueue(const EventQueue&) = delete;
    EventQueue& operator=(const EventQueue&) = delete;
    virtual ~EventQueue() = default;

    /// Lets the host's message loop run until its queue is empty; events, timers and paints may come in here.
    virtual void DoEvents() = 0;
    /// False if `DoEvents` would find nothing to do, so that a long walk need not call it; see
    /// `QueueWatch`. A queue that cannot say returns True.
    virtual bool hasPendingEvents() const { return true; }

    /// Shows a box with the button OK and returns once it was dismissed. Events may come in meanwhile.
    virtual void messageBox(StringView text, BoxStyle style, StringView title) = 0;
};

} // namespace lumtex
