#include "worlds/headless/headless_tips.h"

#include "values/color.h"
#include "worlds/headless/headless_window.h"

#include <algorithm>
#include <utility>

namespace lumtex {

namespace {

constexpr StringView tipClass = u"tooltips_class32";
constexpr OLE_COLOR infoText = 0x80000017U;
constexpr OLE_COLOR infoBack = 0x80000018U;
constexpr Long usualDelay = 500; // milliseconds between the presses of a double click

/// As much as the buffer holds, closed by a zero where there is room for one.
void fill(String& buffer, StringView text) {
    const std::size_t count = std::min(buffer.size(), text.size());
    std::copy_n(text.begin(), count, buffer.begin());
    if (count < buffer.size())
        buffer[count] = u'\0';
}

} // namespace

bool HeadlessTips::isFormOrSurface(WindowHandle window) const {
    return dynamic_cast<const HeadlessWindow*>(tree_.find(window)) != nullptr;
}

WindowHandle HeadlessTips::createWindow(const TipWindowForm& form) {
    if (!initialised_ || form.className != tipClass)
        return 0;
    const WindowHandle handle = tree_.newHandle();
    windows_[handle] = {.tools = {},
                        .backColor = infoBack,
                        .textColor = infoText,
                        .delays = delaysFrom(usualDelay),
                        .margins = {},
                        .maxWidth = -1};
    return handle;
}

HeadlessTips::TipWindow* HeadlessTips::find(WindowHandle tips) {
    const auto found = windows_.find(tips);
    return found != windows_.end() ? &found->second : nullptr;
}

ToolInfo* HeadlessTips::TipWindow::find(const ToolInfo& tool) {
    const auto found = std::find_if(tools.begin(), tools.end(), [&](const ToolInfo& known) {
        return known.owner == tool.owner && known.id == tool.id;
    });
    return found != tools.end() ? &*found : nullptr;
}

HeadlessTips::Delays HeadlessTips::delaysFrom(Long milliseconds) {
    constexpr Long longest = 32767; // a tip's times are 16 bits wide
    return {milliseconds / 5, std::min(milliseconds, longest / 10) * 10, milliseconds};
}

Long HeadlessTips::TipWindow::delay(Long which) const {
    switch (which) {
    case tipDelayReshow:
        return delays.reshow;
    case tipDelayAutoPop:
        return delays.autoPop;
    case tipDelayInitial:
        return delays.initial;
    default:
        return 0;
    }
}

void HeadlessTips::TipWindow::letDelay(Long which, Long milliseconds) {
    switch (which) {
    case tipDelayAutomatic:
        delays = delaysFrom(milliseconds < 0 ? usualDelay : milliseconds);
        break;
    case tipDelayReshow:
        delays.reshow = milliseconds;
        break;
    case tipDelayAutoPop:
        delays.autoPop = milliseconds;
        break;
    case tipDelayInitial:
        delays.initial = milliseconds;
        break;
    default:
        break;
    }
}

Long HeadlessTips::send(WindowHandle tips, TipMessage message, Long wParam, Long lParam) {
    TipWindow* window = find(tips);
    if (window == nullptr)
        return 0;
    switch (message) {
    case ttmSetDelayTime:
        window->letDelay(wParam, lParam);
        return 0;
    case ttmGetDelayTime:
        return window->delay(wParam);
    case ttmGetToolCount:
        return static_cast<Long>(window->tools.size());
    case ttmSetTipBackColor:
        window->backColor = static_cast<OLE_COLOR>(wParam);
        return 0;
    case ttmGetTipBackColor:
        return static_cast<Long>(window->backColor);
    case ttmSetTipTextColor:
        window->textColor = static_cast<OLE_COLOR>(wParam);
        return 0;
    case ttmSetMaxTipWidth:
        return std::exchange(window->maxWidth, lParam);
    case ttmGetMaxTipWidth:
        return window->maxWidth;
    default:
        return 0;
    }
}

Long HeadlessTips::send(WindowHandle tips, TipMessage message, Long wParam, ToolInfo& tool) {
    TipWindow* window = find(tips);
    if (window == nullptr || tool.size != toolInfoSize)
        return 0;
    switch (message) {
    case ttmAddTool:
        window->tools.push_back(tool);
        return 1;
    case ttmDelTool:
        std::erase_if(window->tools, [&](const ToolInfo& known) {
            return known.owner == tool.owner && known.id == tool.id;
        });
        return 0;
    case ttmUpdateTipText:
        if (ToolInfo* known = window->find(tool))
            known->text = tool.text;
        return 0;
    case ttmEnumTools: {
        if (wParam < 0 || static_cast<std::size_t>(wParam) >= window->tools.size())
            return 0;
        const ToolInfo& known = window->tools[static_cast<std::size_t>(wParam)];
        tool.flags = known.flags;
        tool.owner = known.owner;
        tool.id = known.id;
        if (tool.text)
            fill(*tool.text, known.text.value_or(String()));
        return 1;
    }
    default:
        return 0;
    }
}

Long HeadlessTips::send(WindowHandle tips, TipMessage message, Long /*wParam*/, Rect& margins) {
    TipWindow* window = find(tips);
    if (window == nullptr)
        return 0;
    if (message == ttmSetMargin)
        window->margins = margins;
    if (message == ttmGetMargin)
        margins = window->margins;
    return 0;
}

OLE_COLOR HeadlessTips::textColorOf(WindowHandle tips) const {
    const auto found = windows_.find(tips);
    return found != windows_.end() ? found->second.textColor : infoText;
}

std::optional<String> HeadlessTips::tipOf(WindowHandle window) const {
    for (const auto& [handle, tips] : windows_) {
        for (const ToolInfo& tool : tips.tools) {
            if (tool.id == window)
                return tool.text;
        }
    }
    return std::nullopt;
}

} // namespace lumtex
