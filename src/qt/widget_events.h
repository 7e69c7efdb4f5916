/// \file
/// The events of a list in a widget.
#pragma once

#include "model/list_view_events.h"

namespace lumtex::qt {

/// Raises signals, until it is muted: the list may outlive its widget for the rest of a call.
class WidgetEvents : public lmListViewEvents {
  public:
    bool muted = false;
};

} // namespace lumtex::qt
