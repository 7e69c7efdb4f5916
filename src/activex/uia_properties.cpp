/// What programs read of an element.
#include "activex/uia_element.h"

#include <algorithm>

namespace lumtex::win32 {

using accessibility::Element;
using accessibility::Kind;

namespace {

UiaControl controlTypeOf(Kind kind) {
    switch (kind) {
    case Kind::list:
        return UiaControl::dataGrid;
    case Kind::row:
        return UiaControl::dataItem;
    case Kind::checkBox:
        return UiaControl::checkBox;
    case Kind::headers:
        return UiaControl::header;
    case Kind::header:
        return UiaControl::headerItem;
    case Kind::verticalBar:
    case Kind::horizontalBar:
        return UiaControl::scrollBar;
    case Kind::lowArrow:
    case Kind::highArrow:
        return UiaControl::button;
    case Kind::thumb:
        return UiaControl::thumb;
    case Kind::editor:
        return UiaControl::edit;
    case Kind::cell:
    case Kind::nothing:
        break;
    }
    return UiaControl::custom;
}

struct Pattern {
    Kind kind;
    PATTERNID pattern;
};
constexpr Pattern patterns[] = {
    {Kind::list, UIA_GridPatternId},
    {Kind::list, UIA_TablePatternId},
    {Kind::list, UIA_SelectionPatternId},
    {Kind::list, UIA_ScrollPatternId},
    {Kind::row, UIA_SelectionItemPatternId},
    {Kind::row, UIA_ScrollItemPatternId},
    {Kind::cell, UIA_GridItemPatternId},
    {Kind::cell, UIA_TableItemPatternId},
    {Kind::cell, UIA_ValuePatternId},
    {Kind::cell, UIA_ScrollItemPatternId},
    {Kind::cell, UIA_InvokePatternId},
    {Kind::checkBox, UIA_TogglePatternId},
    {Kind::checkBox, UIA_ScrollItemPatternId},
    {Kind::header, UIA_InvokePatternId},
    {Kind::header, UIA_ScrollItemPatternId},
    {Kind::verticalBar, UIA_RangeValuePatternId},
    {Kind::horizontalBar, UIA_RangeValuePatternId},
    {Kind::lowArrow, UIA_InvokePatternId},
    {Kind::highArrow, UIA_InvokePatternId},
    {Kind::editor, UIA_ValuePatternId},
};

Variant unlessEmpty(String text) {
    return text.empty() ? Variant() : Variant(std::move(text));
}

/// What readers come to when they go through what the list holds.
bool isContent(Kind kind) {
    constexpr Kind content[] = {Kind::list, Kind::row, Kind::cell, Kind::checkBox, Kind::editor};
    return std::ranges::find(content, kind) != std::end(content);
}

Variant orientationOf(const Element& element) {
    const bool isBar = element.kind == Kind::verticalBar || element.kind == Kind::horizontalBar;
    return isBar ? Variant(Long{element.horizontal ? 1 : 2}) : Variant();
}

} // namespace

bool hasUiaPattern(Kind kind, PATTERNID pattern) {
    return std::ranges::any_of(
        patterns, [&](const Pattern& each) { return each.kind == kind && each.pattern == pattern; });
}

Variant uiaProperty(const SpokenList& spoken, const Element& element, PROPERTYID property) {
    const auto& list = spoken.list;
    if (!list.exists(element))
        return {};
    const auto is = [&](accessibility::States states) { return (list.states(element) & states) != 0; };
    switch (property) {
    case UIA_ControlTypePropertyId:
        return static_cast<Long>(controlTypeOf(element.kind));
    case UIA_LocalizedControlTypePropertyId:
        return unlessEmpty(list.kind(element));
    case UIA_NamePropertyId:
        return list.name(element);
    case UIA_HelpTextPropertyId:
        return unlessEmpty(list.help(element));
    case UIA_FullDescriptionPropertyId:
        return unlessEmpty(list.description(element));
    case UIA_ItemStatusPropertyId:
        return element.kind == Kind::header ? unlessEmpty(list.description(element)) : Variant();
    case UIA_AcceleratorKeyPropertyId:
        return unlessEmpty(list.keys(element));
    case UIA_IsEnabledPropertyId:
        return !is(accessibility::unavailable);
    case UIA_IsKeyboardFocusablePropertyId:
        return is(accessibility::focusable);
    case UIA_HasKeyboardFocusPropertyId:
        return is(accessibility::focused) && spoken.hasKeyboard();
    case UIA_IsOffscreenPropertyId:
        return is(accessibility::offscreen | accessibility::invisible);
    case UIA_IsControlElementPropertyId:
        return true;
    case UIA_IsContentElementPropertyId:
        return isContent(element.kind);
    case UIA_OrientationPropertyId:
        return orientationOf(element);
    case UIA_PositionInSetPropertyId:
        return element.kind == Kind::row ? Variant(element.row) : Variant();
    case UIA_SizeOfSetPropertyId:
        return element.kind == Kind::row ? Variant(list.rowCount()) : Variant();
    case UIA_ToggleToggleStatePropertyId:
        return element.kind == Kind::checkBox ? Variant(Long{is(accessibility::checked) ? 1 : 0}) : Variant();
    case UIA_ValueValuePropertyId:
        return hasUiaPattern(element.kind, UIA_ValuePatternId) ? Variant(list.value(element)) : Variant();
    case UIA_RangeValueValuePropertyId:
        if (const auto range = list.range(element))
            return static_cast<Double>(range->value);
        return {};
    default:
        return {};
    }
}

} // namespace lumtex::win32
