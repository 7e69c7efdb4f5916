#include "tips/tool_tip.h"

#include "guards/ignoring_errors.h"
#include "platform/window_handle.h"
#include "values/runtime_error.h"
#include "values/variant.h"

#include <array>

namespace lumtex {

namespace {

constexpr StringView tipClass = u"tooltips_class32";
constexpr Long alwaysTip = 1;     // a tip also comes up while its form is not the active one
constexpr Long toolInfoSize = 40; // bytes
constexpr Long idIsWindow = 1;
constexpr Long subclass = 16;
constexpr Long delayMask = 3;
constexpr Integer noWidthLimit = -1;

constexpr std::array<Long Rect::*, 4> margins = {&Rect::Left, &Rect::Top, &Rect::Right, &Rect::Bottom};

constexpr Long Max(Long a, Long b) {
    return a > b ? a : b;
}

/// The low word as the signed number that it holds.
constexpr Integer LoWord2(Long value) {
    return static_cast<Integer>(static_cast<std::uint16_t>(static_cast<std::uint32_t>(value)));
}

StringView GetStrFromBufferA(StringView buffer) {
    return buffer.substr(0, buffer.find(u'\0'));
}

WindowHandle handleOf(const ObjectRef& object) {
    if (!object)
        throw RuntimeError(objectVariableNotSet);
    return windowHandleOf(object->get(u"hwnd"));
}

Long lengthWithZero(StringView text) {
    return static_cast<Long>(text.size()) + 1;
}

} // namespace

Procedure lmToolTip::procedure(StringView name) const {
    return {runtime_, name, ModuleKind::classModule, u"lmToolTip"};
}

void lmToolTip::Class_Terminate() {
    if (window_ != 0)
        platform_.destroyWindow(window_);
}

bool lmToolTip::IsWindow(const ObjectRef& Obj) {
    return ignoringErrors([&] { handleOf(Obj); });
}

Long lmToolTip::send(TipMessage message, Long wParam, Long lParam) {
    return platform_.send(window_, message, wParam, lParam);
}

bool lmToolTip::Create(const ObjectRef& Parent) {
    Procedure p = procedure(u"Create");
    if (!IsWindow(Parent))
        return false;
    const auto parent = p.value<WindowHandle>([&] { return handleOf(Parent); });
    if (!platform_.isFormOrSurface(parent))
        return false;
    if (window_ != 0)
        return true;
    platform_.initCommonControls();
    window_ = platform_.createWindow(
        {.extendedStyle = 0, .className = tipClass, .style = alwaysTip, .owner = parent});
    return window_ != 0;
}

bool lmToolTip::GetToolInfo(WindowHandle Id, ToolInfo& Record, bool WantText) {
    Record.size = toolInfoSize;
    if (WantText)
        Record.text = String(static_cast<std::size_t>(longestText_), u'\0');
    const Integer count = ToolCount();
    for (Long i = 0; i < count; ++i) {
        if (platform_.send(window_, ttmEnumTools, i, Record) != 0 && Record.id == Id)
            return true;
    }
    return false;
}

bool lmToolTip::AddTool(const ObjectRef& Control, StringView Text) {
    Procedure p = procedure(u"AddTool");
    if (window_ == 0 || !IsWindow(Control))
        return false;
    const auto id = p.value<WindowHandle>([&] { return handleOf(Control); });
    if (ToolInfo known; GetToolInfo(id, known, false))
        return false;
    ToolInfo tool{.size = toolInfoSize, .flags = idIsWindow | subclass, .owner = 0, .id = id, .text = {}};
    // Not every control lies in a container.
    ignoringErrors([&] { tool.owner = handleOf(Control->get(u"Container").toObject()); });
    return p.value<bool>([&] {
        tool.text = Text;
        longestText_ = Max(longestText_, lengthWithZero(Text));
        return platform_.send(window_, ttmAddTool, 0, tool) != 0;
    });
}

bool lmToolTip::RemoveTool(const ObjectRef& Control) {
    Procedure p = procedure(u"RemoveTool");
    if (window_ == 0 || !IsWindow(Control))
        return false;
    const auto id = p.value<WindowHandle>([&] { return handleOf(Control); });
    ToolInfo tool;
    if (!GetToolInfo(id, tool, false))
        return false;
    platform_.send(window_, ttmDelTool, 0, tool);
    return true;
}

Integer lmToolTip::ToolCount() {
    return window_ != 0 ? LoWord2(send(ttmGetToolCount)) : Integer{0};
}

String lmToolTip::ToolText(const ObjectRef& Control) {
    Procedure p = procedure(u"ToolText");
    if (window_ == 0 || !IsWindow(Control))
        return {};
    return p.value<String>([&] {
        ToolInfo tool;
        return GetToolInfo(handleOf(Control), tool, true) ? String(GetStrFromBufferA(*tool.text)) : String();
    });
}

void lmToolTip::letToolText(const ObjectRef& Control, StringView text) {
    Procedure p = procedure(u"ToolText");
    if (window_ == 0 || !IsWindow(Control))
        return;
    p.step([&] {
        ToolInfo tool;
        if (!GetToolInfo(handleOf(Control), tool, false))
            return;
        tool.text = text;
        longestText_ = Max(longestText_, lengthWithZero(text));
        platform_.send(window_, ttmUpdateTipText, 0, tool);
    });
}

OLE_COLOR lmToolTip::BackColor() {
    return window_ != 0 ? static_cast<OLE_COLOR>(send(ttmGetTipBackColor)) : 0;
}

void lmToolTip::letBackColor(OLE_COLOR color) {
    if (window_ != 0)
        send(ttmSetTipBackColor, static_cast<Long>(color));
}

OLE_COLOR lmToolTip::ForeColor() {
    // Wanted: reading ForeColor sends the setter's message with a colour of 0, which turns the text black.
    return window_ != 0 ? static_cast<OLE_COLOR>(send(ttmSetTipTextColor, 0)) : 0;
}

void lmToolTip::letForeColor(OLE_COLOR color) {
    if (window_ != 0)
        send(ttmSetTipTextColor, static_cast<Long>(color));
}

Long lmToolTip::DelayTime(Long Which) {
    return window_ != 0 ? send(ttmGetDelayTime, Which & delayMask) : 0;
}

void lmToolTip::letDelayTime(Long Which, Long milliseconds) {
    if (window_ != 0)
        send(ttmSetDelayTime, Which & delayMask, milliseconds);
}

Long lmToolTip::Margin(Long Side) {
    if (window_ == 0 || Side < 0 || Side >= static_cast<Long>(margins.size()))
        return 0;
    Rect current;
    platform_.send(window_, ttmGetMargin, 0, current);
    return current.*margins[static_cast<std::size_t>(Side)];
}

void lmToolTip::letMargin(Long Side, Long margin) {
    if (window_ == 0 || Side < 0 || Side >= static_cast<Long>(margins.size()))
        return;
    Rect current;
    platform_.send(window_, ttmGetMargin, 0, current);
    current.*margins[static_cast<std::size_t>(Side)] = margin;
    platform_.send(window_, ttmSetMargin, 0, current);
}

Integer lmToolTip::MaxTipWidth() {
    return window_ != 0 ? LoWord2(send(ttmGetMaxTipWidth)) : Integer{0};
}

void lmToolTip::letMaxTipWidth(Integer width) {
    if (window_ != 0)
        send(ttmSetMaxTipWidth, 0, width < 1 ? noWidthLimit : width);
}

} // namespace lumtex
