/// \file
/// The dual interface `_lmListView`.
#pragma once

#include "activex/automation_face.h"
#include "activex/guid.h"

namespace lumtex::win32 {

class ListViewFace final : public AutomationFace {
  public:
    ListViewFace(IUnknown& outer, AutomationTarget& target)
        : AutomationFace(outer, target, guidOf("_lmListView")) {}
    ~ListViewFace() = default;

    // clang-format off
#include "activex/list_view_entries.inc"
    // clang-format on
};

} // namespace lumtex::win32
