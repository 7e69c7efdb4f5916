#include "tips/qi.h"

namespace lumtex::tips {

Procedure QI::procedure(StringView name) const {
    return {world_.runtime(), name, ModuleKind::classModule, u"QI"};
}

lmToolTip& QI::needToolTip() {
    if (!toolTip_)
        toolTip_ = std::make_unique<lmToolTip>(world_.runtime(), world_.tips());
    return *toolTip_;
}

void QI::Create(
    const ObjectRef& Parent, const ObjectRef& Control, StringView Text, Long Delay, Integer MaxWidth) {
    Procedure p = procedure(u"Create");
    p.step([&] {
        lmToolTip& tips = needToolTip();
        tips.Create(Parent);
        tips.letMaxTipWidth(MaxWidth);
        tips.letDelayTime(static_cast<Long>(TipDelay::autoPop), Delay);
        tips.AddTool(Control, Text);
        // A control that has a tool already gets no second one, and yet the new text.
        tips.letToolText(Control, Text);
    });
}

void QI::Remove(const ObjectRef& Control) {
    Procedure p = procedure(u"Remove");
    p.step([&] { needToolTip().RemoveTool(Control); });
}

} // namespace lumtex::tips
