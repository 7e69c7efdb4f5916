/// \file
/// The control-level properties, one row each.
#pragma once

#include "model/list_view.h"
#include "model/property_row.h"
#include "values/color.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <tuple>
#include <utility>

namespace lumtex {

namespace property_table {

constexpr auto containersFont = Start::Kind::containersFont;
constexpr auto sixteenPixels = Start::Kind::sixteenPixels;
constexpr auto jumpLines = Start::Kind::jumpLines;
constexpr auto noPicture = Start::Kind::noPicture;

/// In declared order, which is that of the interface.
// clang-format off
inline constexpr auto rows = std::tuple{
    row<&lmListView::DefaultItemFont, &lmListView::setDefaultItemFont, &Properties::DefaultItemFont>(
        u"DefaultItemFont", 100, Group::appearance, After::ownCheckForRedraw, containersFont),
    row<&lmListView::DefaultItemForeColor, &lmListView::letDefaultItemForeColor, &Properties::DefaultItemForeColor>(
        u"DefaultItemForeColor", 101, Group::appearance, After::checkForRedraw, 0),
    row<&lmListView::BackColor, &lmListView::letBackColor, &Properties::BackColor>(
        u"BackColor", 102, Group::appearance, After::redraw, white),
    row<&lmListView::BackColorDisabled, &lmListView::letBackColorDisabled, &Properties::BackColorDisabled>(
        u"BackColorDisabled", 103, Group::appearance, After::redraw, white),
    row<&lmListView::Enabled, &lmListView::letEnabled, &Properties::Enabled>(
        u"Enabled", 104, Group::behaviour, After::ownRedraw, true),
    row<&lmListView::ClickOnIndexChange, &lmListView::letClickOnIndexChange, &Properties::ClickOnIndexChange>(
        u"ClickOnIndexChange", 105, Group::behaviour, After::store, false),
    row<&lmListView::ColorStyle, &lmListView::letColorStyle, &Properties::ColorStyle>(
        u"ColorStyle", 106, Group::appearance, After::ownCheckForRedraw, cXPBlue),
    row<&lmListView::BorderColor, &lmListView::letBorderColor, &Properties::BorderColor>(
        u"BorderColor", 107, Group::appearance, After::redraw, 0),
    row<&lmListView::Style, &lmListView::letStyle, &Properties::Style>(
        u"Style", 108, Group::appearance, After::checkForRedraw, cDefault),
    row<&lmListView::FullRowSelect, &lmListView::letFullRowSelect, &Properties::FullRowSelect>(
        u"FullRowSelect", 109, Group::behaviour, After::checkForRedraw, true),
    row<&lmListView::AllowEdit, &lmListView::letAllowEdit, &Properties::AllowEdit>(
        u"AllowEdit", 110, Group::data, After::store, false),
    row<&lmListView::ValueColor, &lmListView::letValueColor, &Properties::ValueColor>(
        u"ValueColor", 111, Group::appearance, After::checkForRedraw, 0xFF0000),
    row<&lmListView::BorderVisible, &lmListView::letBorderVisible, &Properties::BorderVisible>(
        u"BorderVisible", 112, Group::appearance, After::checkForRedraw, true),
    row<&lmListView::IndentTop, &lmListView::letIndentTop, &Properties::IndentTop>(
        u"IndentTop", 113, Group::appearance, After::checkForRedraw, 3),
    row<&lmListView::IndentLeft, &lmListView::letIndentLeft, &Properties::IndentLeft>(
        u"IndentLeft", 114, Group::appearance, After::checkForRedraw, 3),
    row<&lmListView::IndentRight, &lmListView::letIndentRight, &Properties::IndentRight>(
        u"IndentRight", 115, Group::appearance, After::checkForRedraw, 3),
    row<&lmListView::IndentBottom, &lmListView::letIndentBottom, &Properties::IndentBottom>(
        u"IndentBottom", 116, Group::appearance, After::checkForRedraw, 3),
    row<&lmListView::DistPicText, &lmListView::letDistPicText, &Properties::DistPicText>(
        u"DistPicText", 117, Group::appearance, After::checkForRedraw, 2),
    row<&lmListView::AutoCheckScroll, &lmListView::letAutoCheckScroll, &Properties::AutoCheckScroll>(
        u"AutoCheckScroll", 118, Group::scrollBars, After::own, true),
    row<&lmListView::AutoRedraw, &lmListView::letAutoRedraw, &Properties::AutoRedraw>(
        u"AutoRedraw", 119, Group::behaviour, After::ownRedraw, true),
    row<&lmListView::IconSelect, &lmListView::letIconSelect, &Properties::IconSelect>(
        u"IconSelect", 120, Group::appearance, After::checkForRedraw, true),
    row<&lmListView::IconW, &lmListView::letIconW, &Properties::IconW>(
        u"IconW", 121, Group::appearance, After::checkForRedraw, 16),
    row<&lmListView::IconH, &lmListView::letIconH, &Properties::IconH>(
        u"IconH", 122, Group::appearance, After::checkForRedraw, 16),
    row<&lmListView::ColumnIconW, &lmListView::letColumnIconW, &Properties::ColumnIconW>(
        u"ColumnIconW", 123, Group::columns, After::checkForRedraw, 16),
    row<&lmListView::ColumnIconH, &lmListView::letColumnIconH, &Properties::ColumnIconH>(
        u"ColumnIconH", 124, Group::columns, After::checkForRedraw, 16),
    row<&lmListView::ScrollColorStyle, &lmListView::letScrollColorStyle, &Properties::ScrollColorStyle>(
        u"ScrollColorStyle", 125, Group::scrollBars, After::own, cXPScrollBlue),
    row<&lmListView::GridLines, &lmListView::letGridLines, &Properties::GridLines>(
        u"GridLines", 126, Group::appearance, After::checkForRedraw, false),
    row<&lmListView::GridLineColor, &lmListView::letGridLineColor, &Properties::GridLineColor>(
        u"GridLineColor", 127, Group::appearance, After::checkForRedraw, 0xC0C0C0),
    row<&lmListView::MultiSelect, &lmListView::letMultiSelect, &Properties::MultiSelect>(
        u"MultiSelect", 128, Group::behaviour, After::store, false),
    row<&lmListView::HideColumnHeaders, &lmListView::letHideColumnHeaders, &Properties::HideColumnHeaders>(
        u"HideColumnHeaders", 129, Group::columns, After::checkForRedraw, false),
    row<&lmListView::ColumnTextY, &lmListView::letColumnTextY, &Properties::ColumnTextY>(
        u"ColumnTextY", 130, Group::columns, After::checkForRedraw, 2),
    row<&lmListView::MoveColumnTextAtDown, &lmListView::letMoveColumnTextAtDown, &Properties::MoveColumnTextAtDown>(
        u"MoveColumnTextAtDown", 131, Group::columns, After::store, false),
    row<&lmListView::DefaultColumnFont, &lmListView::setDefaultColumnFont, &Properties::DefaultColumnFont>(
        u"DefaultColumnFont", 132, Group::columns, After::ownCheckForRedraw, containersFont),
    row<&lmListView::DefaultColumnForeColor, &lmListView::letDefaultColumnForeColor, &Properties::DefaultColumnForeColor>(
        u"DefaultColumnForeColor", 133, Group::columns, After::checkForRedraw, 0),
    row<&lmListView::EmptyColumnFieldWidth, &lmListView::letEmptyColumnFieldWidth, &Properties::EmptyColumnFieldWidth>(
        u"EmptyColumnFieldWidth", 134, Group::columns, After::checkForRedraw, 0),
    row<&lmListView::ColumnBackColor, &lmListView::letColumnBackColor, &Properties::ColumnBackColor>(
        u"ColumnBackColor", 135, Group::columns, After::checkForRedraw, buttonFace),
    row<&lmListView::ColumnHoverColor, &lmListView::letColumnHoverColor, &Properties::ColumnHoverColor>(
        u"ColumnHoverColor", 136, Group::columns, After::checkForRedraw, buttonFace),
    row<&lmListView::ColumnDownColor, &lmListView::letColumnDownColor, &Properties::ColumnDownColor>(
        u"ColumnDownColor", 137, Group::columns, After::checkForRedraw, buttonFace),
    row<&lmListView::RowsDynamic, &lmListView::letRowsDynamic, &Properties::RowsDynamic>(
        u"RowsDynamic", 138, Group::appearance, After::ownCheckForRedraw, true),
    row<&lmListView::RowHeight, &lmListView::letRowHeight, &Properties::RowHeight>(
        u"RowHeight", 139, Group::appearance, After::checkForRedraw, sixteenPixels),
    row<&lmListView::ScrollBackColor, &lmListView::letScrollBackColor, &Properties::ScrollBackColor>(
        u"ScrollBackColor", 140, Group::scrollBars, After::toScrollBars, buttonFace),
    row<&lmListView::ScrollArrows, &lmListView::letScrollArrows, &Properties::ScrollArrows>(
        u"ScrollArrows", 141, Group::scrollBars, After::toScrollBars, 0),
    row<&lmListView::ScrollButtons, &lmListView::letScrollButtons, &Properties::ScrollButtons>(
        u"ScrollButtons", 142, Group::scrollBars, After::toScrollBars, buttonFace),
    row<&lmListView::ScrollBar, &lmListView::letScrollBar, &Properties::ScrollBar>(
        u"ScrollBar", 143, Group::scrollBars, After::toScrollBars, buttonFace),
    row<&lmListView::ScrollArrowsDown, &lmListView::letScrollArrowsDown, &Properties::ScrollArrowsDown>(
        u"ScrollArrowsDown", 144, Group::scrollBars, After::toScrollBars, 0),
    row<&lmListView::ScrollButtonsDown, &lmListView::letScrollButtonsDown, &Properties::ScrollButtonsDown>(
        u"ScrollButtonsDown", 145, Group::scrollBars, After::toScrollBars, buttonFace),
    row<&lmListView::ScrollBarDown, &lmListView::letScrollBarDown, &Properties::ScrollBarDown>(
        u"ScrollBarDown", 146, Group::scrollBars, After::toScrollBars, buttonFace),
    row<&lmListView::ScrollArrowsHover, &lmListView::letScrollArrowsHover, &Properties::ScrollArrowsHover>(
        u"ScrollArrowsHover", 147, Group::scrollBars, After::toScrollBars, 0),
    row<&lmListView::ScrollButtonsHover, &lmListView::letScrollButtonsHover, &Properties::ScrollButtonsHover>(
        u"ScrollButtonsHover", 148, Group::scrollBars, After::toScrollBars, buttonFace),
    row<&lmListView::ScrollBarHover, &lmListView::letScrollBarHover, &Properties::ScrollBarHover>(
        u"ScrollBarHover", 149, Group::scrollBars, After::toScrollBars, buttonFace),
    row<&lmListView::EmptyColumnFieldColor, &lmListView::letEmptyColumnFieldColor, &Properties::EmptyColumnFieldColor>(
        u"EmptyColumnFieldColor", 150, Group::columns, After::checkForRedraw, buttonFace),
    row<&lmListView::WheelFunction, &lmListView::letWheelFunction, &Properties::WheelFunction>(
        u"WheelFunction", 151, Group::scrollBars, After::store, cWheelScroll),
    row<&lmListView::WheelScrollLines, &lmListView::letWheelScrollLines, &Properties::WheelScrollLines>(
        u"WheelScrollLines", 152, Group::scrollBars, After::store, 1),
    row<&lmListView::DefaultIconSelectedIsIcon, &lmListView::letDefaultIconSelectedIsIcon, &Properties::DefaultIconSelectedIsIcon>(
        u"DefaultIconSelectedIsIcon", 153, Group::appearance, After::checkForRedraw, true),
    row<&lmListView::ScrollButtonJumpLines, &lmListView::letScrollButtonJumpLines, &Properties::ScrollButtonJumpLines>(
        u"ScrollButtonJumpLines", 154, Group::scrollBars, After::own, jumpLines),
    row<&lmListView::TextPositionDefault, &lmListView::letTextPositionDefault, &Properties::TextPositionDefault>(
        u"TextPositionDefault", 155, Group::appearance, After::ownCheckForRedraw, cTextPosCenter),
    row<&lmListView::DrawItemIcons, &lmListView::letDrawItemIcons, &Properties::DrawItemIcons>(
        u"DrawItemIcons", 156, Group::appearance, After::redraw, true),
    row<&lmListView::DrawColumnIcons, &lmListView::letDrawColumnIcons, &Properties::DrawColumnIcons>(
        u"DrawColumnIcons", 157, Group::columns, After::redraw, true),
    row<&lmListView::BackgroundPicture, &lmListView::setBackgroundPicture, &Properties::BackgroundPicture>(
        u"BackgroundPicture", 158, Group::appearance, After::redraw, noPicture),
    row<&lmListView::Skin, &lmListView::setSkin, &Properties::Skin>(
        u"Skin", 159, Group::appearance, After::ownRedraw, noPicture),
    row<&lmListView::FixColumns, &lmListView::letFixColumns, &Properties::FixColumns>(
        u"FixColumns", 160, Group::columns, After::store, false),
    row<&lmListView::CheckMouseOver, &lmListView::letCheckMouseOver, &Properties::CheckMouseOver>(
        u"CheckMouseOver", 161, Group::behaviour, After::store, false),
    row<&lmListView::OLEDragMode, &lmListView::letOLEDragMode, &Properties::OLEDragMode>(
        u"OLEDragMode", 162, Group::data, After::store, shortNumber(0)),
    row<&lmListView::OLEDropMode, &lmListView::letOLEDropMode, &Properties::OLEDropMode>(
        u"OLEDropMode", 163, Group::data, After::own, shortNumber(0)),
    row<&lmListView::AutoRowColor, &lmListView::letAutoRowColor, &Properties::AutoRowColor>(
        u"AutoRowColor", 164, Group::appearance, After::checkForRedraw, onlyInBag(false)),
    row<&lmListView::RowColorFirst, &lmListView::letRowColorFirst, &Properties::RowColorFirst>(
        u"RowColorFirst", 165, Group::appearance, After::checkForRedraw, onlyInBag(white)),
    row<&lmListView::RowColorSecond, &lmListView::letRowColorSecond, &Properties::RowColorSecond>(
        u"RowColorSecond", 166, Group::appearance, After::checkForRedraw, onlyInBag(white)),
    row<&lmListView::HideSelection, &lmListView::letHideSelection, &Properties::HideSelection>(
        u"HideSelection", 167, Group::appearance, After::checkForRedraw, false),
    bagOnly<&Properties::AllowItemMoving>(
        u"AllowItemMoving", Group::data, After::store, false),
};
// clang-format on

} // namespace property_table

constexpr std::size_t propertyCount = std::tuple_size_v<decltype(property_table::rows)>;

/// The property comes behind another one, instead of where the table has it.
struct MovedProperty {
    StringView name;
    StringView behind;
};

/// The places in the table of all properties, in its order but for those that are moved, one after the other.
template <std::size_t count>
constexpr std::array<std::size_t, propertyCount>
propertyOrder(const std::array<MovedProperty, count>& moved) {
    const auto names =
        std::apply([](const auto&... row) { return std::array<StringView, propertyCount>{row.name...}; },
                   property_table::rows);
    std::array<std::size_t, propertyCount> order{};
    for (std::size_t place = 0; place < propertyCount; ++place)
        order[place] = place;
    const auto of = [&](StringView name) {
        return std::find_if(
            order.begin(), order.end(), [&](std::size_t place) { return names[place] == name; });
    };
    for (const MovedProperty& each : moved) {
        const auto from = of(each.name);
        const auto behind = of(each.behind);
        if (from == order.end() || behind == order.end())
            throw "both are properties of the table";
        if (from < behind)
            std::rotate(from, from + 1, behind + 1);
        else
            std::rotate(behind + 1, from, from + 1);
    }
    return order;
}

/// The order in which saved settings are read. Those of a new list are assigned in it too, but for one.
constexpr auto readingMoves = std::to_array<MovedProperty>({
    {u"AutoRedraw", u"RowHeight"},
    {u"ColumnHoverColor", u"ColumnDownColor"},
    {u"WheelScrollLines", u"DefaultIconSelectedIsIcon"},
    {u"OLEDragMode", u"OLEDropMode"},
});

/// The same with one more.
constexpr std::array<MovedProperty, readingMoves.size() + 1> readingMovesAnd(MovedProperty last) {
    std::array<MovedProperty, readingMoves.size() + 1> moves{};
    std::copy(readingMoves.begin(), readingMoves.end(), moves.begin());
    moves.back() = last;
    return moves;
}

constexpr auto readingOrder = propertyOrder(readingMoves);

/// Calls `visit` with each row, in an order that `propertyOrder` gave.
template <const auto& order, class Visit>
void forEachProperty(Visit visit) {
    [&]<std::size_t... places>(std::index_sequence<places...>) {
        (visit(std::get<order[places]>(property_table::rows)), ...);
    }
    (std::make_index_sequence<propertyCount>{});
}

} // namespace lumtex
