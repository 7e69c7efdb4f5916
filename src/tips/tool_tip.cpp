#include "tips/tool_tip.h"

#include "guards/failure_of.h"
#include "platform/window_handle.h"
#include "values/runtime_error.h"
#include "values/variant.h"

#include <algorithm>
#include <array>

namespace lumtex::tips {

namespace {

constexpr Integer noWidthLimit = -1;

constexpr std::array<Long Rect::*, 4> margins = {&Rect::Left, &Rect::Top, &Rect::Right, &Rect::Bottom};

/// The low word as the signed number that it holds.
constexpr Integer LoWord2(Long value) {
    return static_cast<Integer>(static_cast<std::uint16_t>(static_cast<std::uint32_t>(value)));
}

StringView GetStrFromBufferA(StringView buffer) {
    return buffer.substr(0, buffer.find(u'\0'));
}

WindowHandle handleOf(const ObjectRef& object) {
    if (!object)
        throw RuntimeError(ErrorNumber::objectVariableNotSet);
    return windowHandleOf(object->get(u"hwnd"));
}

/// Any number names one of the four: its two lowest bits count.
TipDelay delayOf(Long which) {
    return static_cast<TipDelay>(which & 3);
}

} // namespace

Procedure lmToolTip::procedure(StringView name) const {
    return {runtime_, name, ModuleKind::classModule, u"lmToolTip"};
}

bool lmToolTip::IsWindow(const ObjectRef& Obj) {
    return ignoringErrors([&] { handleOf(Obj); });
}

void lmToolTip::keepLongest(StringView text) {
    longestText_ = std::max(longestText_, text.size() + 1);
}

bool lmToolTip::Create(const ObjectRef& Parent) {
    Procedure p = procedure(u"Create");
    if (!IsWindow(Parent))
        return false;
    const auto parent = p.value<WindowHandle>([&] { return handleOf(Parent); });
    if (!platform_.isFormOrSurface(parent))
        return false;
    if (!window_)
        p.step([&] { window_ = platform_.createTipWindow(parent); });
    return window_ != nullptr;
}

std::optional<TipTool> lmToolTip::GetToolInfo(WindowHandle Id, std::size_t textRoom) const {
    const Integer count = ToolCount();
    for (Long i = 0; i < count; ++i) {
        std::optional<TipTool> tool = window_->tool(i, textRoom);
        if (tool && tool->id == Id)
            return tool;
    }
    return std::nullopt;
}

bool lmToolTip::AddTool(const ObjectRef& Control, StringView Text) {
    Procedure p = procedure(u"AddTool");
    if (!window_ || !IsWindow(Control))
        return false;
    const auto id = p.value<WindowHandle>([&] { return handleOf(Control); });
    if (GetToolInfo(id))
        return false;
    TipTool tool{.owner = 0, .id = id, .text = {}};
    // Not every control lies in a container.
    ignoringErrors([&] { tool.owner = handleOf(Control->get(u"Container").toObject()); });
    return p.value<bool>([&] {
        tool.text = Text;
        keepLongest(Text);
        return window_->add(tool);
    });
}

bool lmToolTip::RemoveTool(const ObjectRef& Control) {
    Procedure p = procedure(u"RemoveTool");
    if (!window_ || !IsWindow(Control))
        return false;
    const auto id = p.value<WindowHandle>([&] { return handleOf(Control); });
    const std::optional<TipTool> tool = GetToolInfo(id);
    if (tool)
        window_->remove(*tool);
    return tool.has_value();
}

Integer lmToolTip::ToolCount() const {
    return window_ ? LoWord2(window_->toolCount()) : Integer{0};
}

String lmToolTip::ToolText(const ObjectRef& Control) {
    Procedure p = procedure(u"ToolText");
    if (!window_ || !IsWindow(Control))
        return {};
    return p.value<String>([&] {
        const std::optional<TipTool> tool = GetToolInfo(handleOf(Control), longestText_);
        return tool ? String(GetStrFromBufferA(tool->text)) : String();
    });
}

void lmToolTip::letToolText(const ObjectRef& Control, StringView text) {
    Procedure p = procedure(u"ToolText");
    if (!window_ || !IsWindow(Control))
        return;
    p.step([&] {
        std::optional<TipTool> tool = GetToolInfo(handleOf(Control));
        if (!tool)
            return;
        tool->text = text;
        keepLongest(text);
        window_->setText(*tool);
    });
}

OLE_COLOR lmToolTip::BackColor() const {
    return window_ ? window_->backColor() : 0;
}

void lmToolTip::letBackColor(OLE_COLOR color) {
    if (window_)
        window_->setBackColor(color);
}

OLE_COLOR lmToolTip::ForeColor() {
    // Wanted: reading ForeColor sends the setter's message with a colour of 0, which turns the text black.
    return window_ ? window_->setTextColor(0) : 0;
}

void lmToolTip::letForeColor(OLE_COLOR color) {
    if (window_)
        window_->setTextColor(color);
}

Long lmToolTip::DelayTime(Long Which) const {
    return window_ ? window_->delay(delayOf(Which)) : 0;
}

void lmToolTip::letDelayTime(Long Which, Long milliseconds) {
    if (window_)
        window_->setDelay(delayOf(Which), milliseconds);
}

Long lmToolTip::Margin(Long Side) const {
    if (!window_ || Side < 0 || Side >= static_cast<Long>(margins.size()))
        return 0;
    return window_->margins().*margins[static_cast<std::size_t>(Side)];
}

void lmToolTip::letMargin(Long Side, Long margin) {
    if (!window_ || Side < 0 || Side >= static_cast<Long>(margins.size()))
        return;
    Rect current = window_->margins();
    current.*margins[static_cast<std::size_t>(Side)] = margin;
    window_->setMargins(current);
}

Integer lmToolTip::MaxTipWidth() const {
    return window_ ? LoWord2(window_->maxWidth()) : Integer{0};
}

void lmToolTip::letMaxTipWidth(Integer width) {
    if (window_)
        window_->setMaxWidth(width < 1 ? noWidthLimit : width);
}

} // namespace lumtex::tips
