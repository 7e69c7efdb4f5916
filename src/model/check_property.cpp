/// Handing the ten scroll colours to the bars.
#include "bars/scroll_colors.h"
#include "model/list_view.h"
#include "platform/property_bag.h"

namespace lumtex {

void lmListView::CheckProperty() {
    Procedure p = procedure(u"CheckProperty");
    MemoryPropertyBag bag;
    for (const ScrollColor& color : scrollColors) {
        p.step([&] { bag.WriteProperty(color.name, properties_.*color.field, color.bagDefault); });
    }
    p.step([&] { HS->SetNewProperty(bag); });
    p.step([&] { VS->SetNewProperty(bag); });
    CheckForRedraw();
}

} // namespace lumtex
