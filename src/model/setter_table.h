/// \file
/// The control-level properties by name, each with what its setter does once the value is stored.
#pragma once

#include "values/types.h"

#include <array>
#include <cstddef>

namespace lumtex {

enum class SetterClass : Byte {
    checkForRedraw, ///< tells the host, then repaints where `AutoRedraw` or design mode asks for it
    storeOnly,      ///< tells the host
    redraw,         ///< tells the host, then repaints whatever `AutoRedraw` says
    toScrollBars,   ///< tells the host, then hands the ten scroll colours to the bars
    special,        ///< a setter of its own
};

/// In declared order; the read-only `NewIndex` has no setter.
enum class Property : Byte {
    DefaultItemFont,
    DefaultItemForeColor,
    BackColor,
    BackColorDisabled,
    Enabled,
    ClickOnIndexChange,
    ListIndex,
    ColorStyle,
    BorderColor,
    Style,
    FullRowSelect,
    AllowEdit,
    ValueColor,
    BorderVisible,
    IndentTop,
    IndentLeft,
    IndentRight,
    IndentBottom,
    DistPicText,
    AutoCheckScroll,
    AutoRedraw,
    IconSelect,
    IconW,
    IconH,
    ColumnIconW,
    ColumnIconH,
    ScrollColorStyle,
    GridLines,
    GridLineColor,
    MultiSelect,
    HideColumnHeaders,
    ColumnTextY,
    MoveColumnTextAtDown,
    DefaultColumnFont,
    DefaultColumnForeColor,
    EmptyColumnFieldWidth,
    ColumnBackColor,
    ColumnHoverColor,
    ColumnDownColor,
    RowsDynamic,
    RowHeight,
    ScrollBackColor,
    ScrollArrows,
    ScrollButtons,
    ScrollBar,
    ScrollArrowsDown,
    ScrollButtonsDown,
    ScrollBarDown,
    ScrollArrowsHover,
    ScrollButtonsHover,
    ScrollBarHover,
    EmptyColumnFieldColor,
    WheelFunction,
    WheelScrollLines,
    DefaultIconSelectedIsIcon,
    ScrollButtonJumpLines,
    TextPositionDefault,
    DrawItemIcons,
    DrawColumnIcons,
    BackgroundPicture,
    Skin,
    FixColumns,
    CheckMouseOver,
    OLEDragMode,
    OLEDropMode,
    AutoRowColor,
    RowColorFirst,
    RowColorSecond,
    HideSelection,
    AllowItemMoving,
};

struct PropertySetter {
    const char16_t* name;
    SetterClass setterClass;
};

/// Indexed by `Property`.
// clang-format off
constexpr auto setterTable = std::to_array<PropertySetter>({
    {u"DefaultItemFont", SetterClass::special},
    {u"DefaultItemForeColor", SetterClass::checkForRedraw},
    {u"BackColor", SetterClass::redraw},
    {u"BackColorDisabled", SetterClass::redraw},
    {u"Enabled", SetterClass::special},
    {u"ClickOnIndexChange", SetterClass::storeOnly},
    {u"ListIndex", SetterClass::special},
    {u"ColorStyle", SetterClass::special},
    {u"BorderColor", SetterClass::redraw},
    {u"Style", SetterClass::checkForRedraw},
    {u"FullRowSelect", SetterClass::checkForRedraw},
    {u"AllowEdit", SetterClass::storeOnly},
    {u"ValueColor", SetterClass::checkForRedraw},
    {u"BorderVisible", SetterClass::checkForRedraw},
    {u"IndentTop", SetterClass::checkForRedraw},
    {u"IndentLeft", SetterClass::checkForRedraw},
    {u"IndentRight", SetterClass::checkForRedraw},
    {u"IndentBottom", SetterClass::checkForRedraw},
    {u"DistPicText", SetterClass::checkForRedraw},
    {u"AutoCheckScroll", SetterClass::special},
    {u"AutoRedraw", SetterClass::special},
    {u"IconSelect", SetterClass::checkForRedraw},
    {u"IconW", SetterClass::checkForRedraw},
    {u"IconH", SetterClass::checkForRedraw},
    {u"ColumnIconW", SetterClass::checkForRedraw},
    {u"ColumnIconH", SetterClass::checkForRedraw},
    {u"ScrollColorStyle", SetterClass::special},
    {u"GridLines", SetterClass::checkForRedraw},
    {u"GridLineColor", SetterClass::checkForRedraw},
    {u"MultiSelect", SetterClass::storeOnly},
    {u"HideColumnHeaders", SetterClass::checkForRedraw},
    {u"ColumnTextY", SetterClass::checkForRedraw},
    {u"MoveColumnTextAtDown", SetterClass::storeOnly},
    {u"DefaultColumnFont", SetterClass::special},
    {u"DefaultColumnForeColor", SetterClass::checkForRedraw},
    {u"EmptyColumnFieldWidth", SetterClass::checkForRedraw},
    {u"ColumnBackColor", SetterClass::checkForRedraw},
    {u"ColumnHoverColor", SetterClass::checkForRedraw},
    {u"ColumnDownColor", SetterClass::checkForRedraw},
    {u"RowsDynamic", SetterClass::special},
    {u"RowHeight", SetterClass::checkForRedraw},
    {u"ScrollBackColor", SetterClass::toScrollBars},
    {u"ScrollArrows", SetterClass::toScrollBars},
    {u"ScrollButtons", SetterClass::toScrollBars},
    {u"ScrollBar", SetterClass::toScrollBars},
    {u"ScrollArrowsDown", SetterClass::toScrollBars},
    {u"ScrollButtonsDown", SetterClass::toScrollBars},
    {u"ScrollBarDown", SetterClass::toScrollBars},
    {u"ScrollArrowsHover", SetterClass::toScrollBars},
    {u"ScrollButtonsHover", SetterClass::toScrollBars},
    {u"ScrollBarHover", SetterClass::toScrollBars},
    {u"EmptyColumnFieldColor", SetterClass::checkForRedraw},
    {u"WheelFunction", SetterClass::storeOnly},
    {u"WheelScrollLines", SetterClass::storeOnly},
    {u"DefaultIconSelectedIsIcon", SetterClass::checkForRedraw},
    {u"ScrollButtonJumpLines", SetterClass::special},
    {u"TextPositionDefault", SetterClass::special},
    {u"DrawItemIcons", SetterClass::redraw},
    {u"DrawColumnIcons", SetterClass::redraw},
    {u"BackgroundPicture", SetterClass::redraw},
    {u"Skin", SetterClass::special},
    {u"FixColumns", SetterClass::storeOnly},
    {u"CheckMouseOver", SetterClass::storeOnly},
    {u"OLEDragMode", SetterClass::storeOnly},
    {u"OLEDropMode", SetterClass::special},
    {u"AutoRowColor", SetterClass::checkForRedraw},
    {u"RowColorFirst", SetterClass::checkForRedraw},
    {u"RowColorSecond", SetterClass::checkForRedraw},
    {u"HideSelection", SetterClass::checkForRedraw},
    {u"AllowItemMoving", SetterClass::storeOnly},
});
// clang-format on

constexpr const PropertySetter& setterOf(Property property) {
    return setterTable[static_cast<std::size_t>(property)];
}

} // namespace lumtex
