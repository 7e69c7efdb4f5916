/// \file
/// The identifiers and numbers under which the world knows the component and its members. They never change,
/// and none is used twice.
#pragma once

#include "values/types.h"

#include <array>
#include <string_view>

namespace lumtex {

struct Identifier {
    std::string_view name; ///< as the type library spells it
    std::string_view uuid; ///< in lower case, without braces
};

/// Library, classes, their interfaces, the record, and the enumerations. Made at random in 2026.
// clang-format off
constexpr auto identifiers = std::to_array<Identifier>({
    {"LumtexListView",     "5bdc0d33-3317-4cd2-b5d2-9324de4d043f"},
    {"lmListView",         "e49f72c4-95ca-4e64-8760-588f61e91f54"},
    {"_lmListView",        "391c9172-2dce-4dc1-be64-a093282d8b6c"},
    {"__lmListView",       "e32982d6-d13a-41ee-b8ad-8319c0aad1ce"},
    {"SpEv",               "ea504454-ca3c-4669-be1f-8e68a881a57e"},
    {"_SpEv",              "b4132963-a031-4a99-a46b-b6bc85215d94"},
    {"Error",              "18a65bbd-7353-4048-be6c-560df61da5d1"},
    {"_Error",             "7006c0f3-9697-492e-a81b-c61034ae072f"},
    {"FindResults",        "e47694b7-f9b5-48fc-8d9b-34bfe4112ba2"},
    {"cColorStyle",        "b97ab266-47f5-409d-9a24-385cd14c9e3b"},
    {"cScrollColorStyle",  "82271a5b-627a-4ee6-8374-2327de93fbee"},
    {"cWheelFunction",     "1b93f80d-26b5-4beb-8181-5e915f849dff"},
    {"cListViewStyle",     "6a1081c1-ac0f-4b53-b022-2c80b1b95345"},
    {"cColumnHeaderAlign", "a9a0877f-2755-4da4-9e79-d676dc6e3b44"},
    {"cItemAlign",         "cd784e80-4188-43a8-bc37-41a287cb630e"},
    {"cTextPosition",      "5390f6aa-9f07-43f4-ae0f-447232a45bf5"},
    {"cSortMode",          "1dd761cf-4644-4002-927a-a05cbe237205"},
    {"cSortType",          "b06b96ed-8552-4a46-9da3-f2f1aa3b3571"},
    {"cFindBegin",         "22095284-1fbe-4704-9246-9146a01820f1"},
    {"cFindCompare",       "d7fe7b98-22e9-4d43-b71c-8e3669b75ed2"},
    {"cActiveXPTheme",     "285b9719-24af-4b21-be86-d5d234039d33"},
    {"cMouseButton",       "5ecc9a52-ee8c-4f21-a433-763dc1393096"},
});
// clang-format on

/// Version of the type library; a host that was built against one major version finds no other.
constexpr int typeLibraryMajor = 1;
constexpr int typeLibraryMinor = 0;

/// The uuid of a name. An unknown name is a compile-time error in a constant expression; at run time it
/// throws std::out_of_range.
constexpr std::string_view uuidOf(std::string_view name) {
    std::size_t place = 0;
    while (place < identifiers.size() && identifiers[place].name != name)
        ++place;
    return identifiers.at(place).uuid;
}

struct MemberNumber {
    StringView name; ///< no two public classes share one
    Long number;     ///< by which hosts call it
};

/// A new member takes a number that its class has not used yet. -552 is the system's own for a box about the
/// control.
// clang-format off
constexpr auto memberNumbers = std::to_array<MemberNumber>({
    // The list as a whole
    {u"ColumnsAdd", 1},
    {u"ColumnsClear", 2},
    {u"ColumnsRemove", 3},
    {u"ColumnsCount", 4},
    {u"RowsAdd", 5},
    {u"RowsRemove", 6},
    {u"RowsSelectedRemove", 7},
    {u"RowsClear", 8},
    {u"RowsCount", 9},
    {u"RowSelectedCount", 10},
    {u"WrongIndex", 11},
    {u"WrongColumnIndex", 12},
    {u"NewIndex", 13},
    {u"ListIndex", 14},
    {u"RowIndex", 15},
    {u"TopIndex", 16},
    {u"CheckScroll", 17},
    {u"Redraw", 18},
    {u"ClearListView", 19},
    {u"StopEdit", 20},
    {u"hwnd", 21},
    {u"hwndEdit", 22},
    {u"SetEdit", 23},
    {u"ColumnIndex", 24},
    {u"Sort", 25},
    {u"SortColumnIndex", 26},
    {u"FindItem", 27},
    {u"AutoColumnSize", 28},
    {u"ContentSave", 29},
    {u"ContentInput", 30},
    {u"About", -552},
    // Plain properties
    {u"DefaultItemFont", 100},
    {u"DefaultItemForeColor", 101},
    {u"BackColor", 102},
    {u"BackColorDisabled", 103},
    {u"Enabled", 104},
    {u"ClickOnIndexChange", 105},
    {u"ColorStyle", 106},
    {u"BorderColor", 107},
    {u"Style", 108},
    {u"FullRowSelect", 109},
    {u"AllowEdit", 110},
    {u"ValueColor", 111},
    {u"BorderVisible", 112},
    {u"IndentTop", 113},
    {u"IndentLeft", 114},
    {u"IndentRight", 115},
    {u"IndentBottom", 116},
    {u"DistPicText", 117},
    {u"AutoCheckScroll", 118},
    {u"AutoRedraw", 119},
    {u"IconSelect", 120},
    {u"IconW", 121},
    {u"IconH", 122},
    {u"ColumnIconW", 123},
    {u"ColumnIconH", 124},
    {u"ScrollColorStyle", 125},
    {u"GridLines", 126},
    {u"GridLineColor", 127},
    {u"MultiSelect", 128},
    {u"HideColumnHeaders", 129},
    {u"ColumnTextY", 130},
    {u"MoveColumnTextAtDown", 131},
    {u"DefaultColumnFont", 132},
    {u"DefaultColumnForeColor", 133},
    {u"EmptyColumnFieldWidth", 134},
    {u"ColumnBackColor", 135},
    {u"ColumnHoverColor", 136},
    {u"ColumnDownColor", 137},
    {u"RowsDynamic", 138},
    {u"RowHeight", 139},
    {u"ScrollBackColor", 140},
    {u"ScrollArrows", 141},
    {u"ScrollButtons", 142},
    {u"ScrollBar", 143},
    {u"ScrollArrowsDown", 144},
    {u"ScrollButtonsDown", 145},
    {u"ScrollBarDown", 146},
    {u"ScrollArrowsHover", 147},
    {u"ScrollButtonsHover", 148},
    {u"ScrollBarHover", 149},
    {u"EmptyColumnFieldColor", 150},
    {u"WheelFunction", 151},
    {u"WheelScrollLines", 152},
    {u"DefaultIconSelectedIsIcon", 153},
    {u"ScrollButtonJumpLines", 154},
    {u"TextPositionDefault", 155},
    {u"DrawItemIcons", 156},
    {u"DrawColumnIcons", 157},
    {u"BackgroundPicture", 158},
    {u"Skin", 159},
    {u"FixColumns", 160},
    {u"CheckMouseOver", 161},
    {u"OLEDragMode", 162},
    {u"OLEDropMode", 163},
    {u"AutoRowColor", 164},
    {u"RowColorFirst", 165},
    {u"RowColorSecond", 166},
    {u"HideSelection", 167},
    {u"Recordset", 168},
    // Columns
    {u"ColumnText", 200},
    {u"ColumnIcon", 201},
    {u"ColumnIconHover", 202},
    {u"ColumnIconDown", 203},
    {u"ColumnLeft", 204},
    {u"ColumnWidth", 205},
    {u"ColumnTag", 206},
    {u"ColumnKey", 207},
    {u"ColumnAlignment", 208},
    {u"ColumnIconAlignment", 209},
    {u"ColumnForeColor", 210},
    {u"ColumnForeColorHover", 211},
    {u"ColumnForeColorDown", 212},
    {u"ColumnAllowSorting", 213},
    {u"ColumnCheckBoxes", 214},
    {u"ColumnAdjustItemIcons", 215},
    {u"ColumnItemIconH", 216},
    {u"ColumnItemIconW", 217},
    // Rows
    {u"RowEnabled", 300},
    {u"RowSelected", 301},
    {u"RowChecked", 302},
    {u"TextPosition", 303},
    // Cells
    {u"ItemFontBold", 400},
    {u"ItemFontItalic", 401},
    {u"ItemFontUnderline", 402},
    {u"ItemFontStrikethrough", 403},
    {u"ItemFontSize", 404},
    {u"ItemFontName", 405},
    {u"ItemForeColor", 406},
    {u"ItemBackColor", 407},
    {u"ItemForeColorSelect", 408},
    {u"ItemBackColorSelect", 409},
    {u"ItemForeColorDis", 410},
    {u"ItemBackColorDis", 411},
    {u"ItemTag", 412},
    {u"ItemEnabled", 413},
    {u"ItemIcon", 414},
    {u"ItemIconSelected", 415},
    {u"ItemAllowEdit", 416},
    {u"ItemChecked", 417},
    {u"ItemAlignment", 418},
    {u"ItemIconAlignment", 419},
    {u"ItemText", 420},
    {u"ItemToolTip", 421},
    {u"ItemTextWidth", 422},
    {u"ItemObject", 423},
    {u"ItemsCheckedCount", 424},
    // SpEv and Error
    {u"TextRead", 1},
    {u"TextSave", 2},
    {u"PlayMusic", 3},
    {u"ListSave", 4},
    {u"ListRead", 5},
    {u"FileExists", 6},
    {u"ActiveXPTheme", 7},
    {u"MouseButtonPressed", 8},
    {u"SilentError", 1},
});
// clang-format on

/// The number of a member. An unknown name is a compile-time error in a constant expression; at run time it
/// throws std::out_of_range.
constexpr Long numberOf(StringView name) {
    std::size_t place = 0;
    while (place < memberNumbers.size() && memberNumbers[place].name != name)
        ++place;
    return memberNumbers.at(place).number;
}

} // namespace lumtex
