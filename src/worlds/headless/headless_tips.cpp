#include "worlds/headless/headless_tips.h"

#include "worlds/headless/headless_tip_window.h"
#include "worlds/headless/headless_window.h"

#include <algorithm>

namespace lumtex::headless {

bool HeadlessTips::isFormOrSurface(WindowHandle window) const {
    return dynamic_cast<const HeadlessWindow*>(tree_.find(window)) != nullptr;
}

std::unique_ptr<TipWindow> HeadlessTips::createTipWindow(WindowHandle /*owner*/) {
    return std::make_unique<HeadlessTipWindow>(*this, tree_.newHandle());
}

OLE_COLOR HeadlessTips::textColorOf(WindowHandle tips) const {
    const auto found = std::find_if(windows_.begin(), windows_.end(), [&](const HeadlessTipWindow* window) {
        return window->hWnd() == tips;
    });
    return found != windows_.end() ? (*found)->textColor() : HeadlessTipWindow::usualTextColor;
}

std::optional<String> HeadlessTips::tipOf(WindowHandle window) const {
    for (const HeadlessTipWindow* tips : windows_)
        for (const TipTool& tool : tips->tools())
            if (tool.id == window)
                return tool.text;
    return std::nullopt;
}

} // namespace lumtex::headless
