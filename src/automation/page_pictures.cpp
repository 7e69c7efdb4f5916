/// The table.
#include "automation/page_pictures.h"

#include <array>

namespace lumtex::automation {

namespace {

using enum PicturePlace;

// clang-format off
constexpr auto all = std::to_array<PagePicture>({
    {u"BackColor", list, 0xFFFFFF, 0xD8F0D8},
    {u"BackColorDisabled", list, 0xFFFFFF, 0xD0D0D0, listOff},
    {u"Enabled", list, -1, 0},
    {u"ColorStyle", list, 0, 2, rowChosen},
    {u"BorderColor", list, 0x000000, 0x0000FF, customScheme},
    {u"BorderVisible", list, -1, 0},
    {u"Style", list, 0, 1, boxesToCheck},
    {u"FullRowSelect", list, -1, 0, rowChosen},
    {u"ValueColor", list, 0xFF0000, 0x008000, customScheme + rowChosen},
    {u"DistPicText", list, 2, 20, withIcons},
    {u"GridLines", list, 0, -1},
    {u"HideColumnHeaders", list, 0, -1},
    {u"ColumnTextY", list, 2, 12},
    {u"EmptyColumnFieldColor", list, 0xC0C0C0, 0x80C0FF, customScheme},
    {u"ColumnBackColor", list, 0xC0C0C0, 0x80C0FF, customScheme},
    {u"RowsDynamic", list, -1, 0, largeCell},
    {u"RowHeight", list, 240, 450, equalRows},
    {u"ScrollColorStyle", list, 0, 2},
    {u"ScrollBackColor", list, 0xE0E0E0, 0x80C0FF, customScheme},
    {u"ScrollArrows", list, 0x000000, 0x0000FF, customScheme},
    {u"ScrollButtons", list, 0xE0E0E0, 0x80C0FF, customScheme},
    {u"ScrollBar", list, 0xE0E0E0, 0x80C0FF, customScheme},
    {u"DrawItemIcons", list, -1, 0, withIcons},
    {u"DrawColumnIcons", list, -1, 0, withIcons},
    {u"AutoRowColor", list, 0, -1, colouredRows},
    {u"RowColorFirst", list, 0xFFFFFF, 0xD8F0D8, colouredRows},
    {u"RowColorSecond", list, 0xFFFFFF, 0xD8F0D8, colouredRows},
    {u"HideSelection", list, 0, -1, rowChosen},
    {u"ColumnText", column, StringView(u"City"), StringView(u"Town")},
    {u"ColumnWidth", column, 1500, 2400},
    {u"ColumnAlignment", column, 0, 2},
    {u"ColumnIconAlignment", column, 0, 2, withIcons},
    {u"ColumnForeColor", column, 0x000000, 0x0000FF},
    {u"ColumnCheckBoxes", column, 0, -1, boxesToCheck},
    {u"RowEnabled", row, -1, 0},
    {u"RowSelected", row, 0, -1},
    {u"TextPosition", row, 0, 2, equalRows},
    {u"ItemText", cell, StringView(u"Oslo"), StringView(u"Bergen")},
    {u"ItemAlignment", cell, 0, 2},
    {u"ItemIconAlignment", cell, 0, 2, withIcons},
    {u"ItemFontBold", cell, 0, -1},
    {u"ItemFontUnderline", cell, 0, -1},
    {u"ItemFontStrikethrough", cell, 0, -1},
    {u"ItemFontSize", cell, 8, 14},
    {u"ItemFontName", cell, StringView(u"Verdana"), StringView(u"Courier New")},
    {u"ItemForeColor", cell, 0x000000, 0x0000FF},
    {u"ItemBackColor", cell, 0xFFFFFF, 0x80C0FF},
    {u"ItemForeColorSelect", cell, 0xFFFFFF, 0x00FFFF, rowChosen},
    {u"ItemBackColorSelect", cell, 0x800000, 0x008000, rowChosen},
    {u"ItemForeColorDis", cell, 0x808080, 0x0000FF, cellOff},
    {u"ItemBackColorDis", cell, 0xE0E0E0, 0x80C0FF, cellOff},
    {u"ItemEnabled", cell, -1, 0},
    {u"ItemChecked", cell, 0, -1, boxesToCheck},
});
// clang-format on

} // namespace

std::span<const PagePicture> pagePictures() {
    return all;
}

} // namespace lumtex::automation
