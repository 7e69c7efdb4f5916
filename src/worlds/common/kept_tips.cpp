#include "worlds/common/kept_tips.h"

#include "worlds/common/kept_tip_window.h"

#include <algorithm>

namespace lumtex::worlds {

bool KeptTips::isFormOrSurface(WindowHandle window) const {
    const Pane* pane = tree_.find(window);
    return pane != nullptr && !pane->isBox();
}

std::unique_ptr<TipWindow> KeptTips::createTipWindow(WindowHandle /*owner*/) {
    return std::make_unique<KeptTipWindow>(*this, tree_.newHandle());
}

OLE_COLOR KeptTips::textColorOf(WindowHandle tips) const {
    const auto found = std::find_if(windows_.begin(), windows_.end(), [&](const KeptTipWindow* window) {
        return window->hWnd() == tips;
    });
    return found != windows_.end() ? (*found)->textColor() : KeptTipWindow::usualTextColor;
}

std::optional<String> KeptTips::tipOf(WindowHandle window) const {
    for (const KeptTipWindow* tips : windows_)
        for (const TipTool& tool : tips->tools())
            if (tool.id == window)
                return tool.text;
    return std::nullopt;
}

} // namespace lumtex::worlds
