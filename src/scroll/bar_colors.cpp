/// Handing the ten scroll colours to the bars.
#include "bars/scroll_colors.h"
#include "platform/property_bag.h"
#include "scroll/scroller.h"

namespace lumtex {

void Scroller::CheckProperty() {
    Procedure p = procedure(u"CheckProperty");
    MemoryPropertyBag bag;
    for (const bars::ScrollColor& color : bars::scrollColors) {
        p.step([&] { bag.WriteProperty(color.name, properties_.*color.field, color.bagDefault); });
    }
    p.step([&] { HS_->SetNewProperty(bag); });
    p.step([&] { VS_->SetNewProperty(bag); });
    core_.CheckForRedraw();
}

} // namespace lumtex
