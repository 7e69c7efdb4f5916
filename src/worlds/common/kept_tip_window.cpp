#include "worlds/common/kept_tip_window.h"

#include <algorithm>

namespace lumtex::worlds {

namespace {

constexpr Long usualDelay = 500; // milliseconds between the presses of a double click

bool isSame(const TipTool& a, const TipTool& b) {
    return a.owner == b.owner && a.id == b.id;
}

} // namespace

KeptTipWindow::KeptTipWindow(KeptTips& desktop, WindowHandle handle) : desktop_(desktop), handle_(handle) {
    setAllDelays(usualDelay);
    desktop_.windows_.push_back(this);
}

KeptTipWindow::~KeptTipWindow() {
    std::erase(desktop_.windows_, this);
}

bool KeptTipWindow::add(const TipTool& tool) {
    tools_.push_back(tool);
    return true;
}

void KeptTipWindow::remove(const TipTool& tool) {
    std::erase_if(tools_, [&](const TipTool& known) { return isSame(known, tool); });
}

void KeptTipWindow::setText(const TipTool& tool) {
    const auto found =
        std::find_if(tools_.begin(), tools_.end(), [&](const TipTool& known) { return isSame(known, tool); });
    if (found != tools_.end())
        found->text = tool.text;
}

std::optional<TipTool> KeptTipWindow::tool(Long index, std::size_t textRoom) const {
    if (index < 0 || index >= toolCount())
        return std::nullopt;
    TipTool found = tools_[static_cast<std::size_t>(index)];
    found.text.resize(std::min(found.text.size(), textRoom));
    return found;
}

OLE_COLOR KeptTipWindow::setTextColor(OLE_COLOR color) {
    textColor_ = color;
    return 0;
}

void KeptTipWindow::setAllDelays(Long milliseconds) {
    constexpr Long longest = 32767; // a tip's times are 16 bits wide
    delays_ = {0, milliseconds / 5, std::min(milliseconds, longest / 10) * 10, milliseconds};
}

Long KeptTipWindow::delay(TipDelay which) const {
    return delays_[static_cast<std::size_t>(which)];
}

void KeptTipWindow::setDelay(TipDelay which, Long milliseconds) {
    if (which == TipDelay::automatic)
        setAllDelays(milliseconds < 0 ? usualDelay : milliseconds);
    else
        delays_[static_cast<std::size_t>(which)] = milliseconds;
}

} // namespace lumtex::worlds
