/// \file
/// Signals of a widget as the events that they stand for.
#pragma once

#include "model/list_view_events.h"
#include "qt/lumtex_list_view.h"

namespace lumtex::testing {

/// From now on tells `events` of each signal, with values written back. Both must outlive the connections,
/// which the widget holds.
class SignalRelay {
  public:
    SignalRelay(LumtexListView& widget, lmListViewEvents& events);
};

} // namespace lumtex::testing
