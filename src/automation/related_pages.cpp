/// The families.
#include "automation/related_pages.h"

#include <array>

namespace lumtex::automation {

namespace {

template <class... Names>
constexpr auto names(Names... each) {
    return std::array<StringView, sizeof...(each)>{each...};
}

// clang-format off
constexpr auto editing = names(u"AllowEdit", u"ItemAllowEdit", u"SetEdit", u"StopEdit", u"hwndEdit");
constexpr auto editingEvents = names(u"ItemChanged", u"ItemDblClick");
constexpr auto sorting = names(u"Sort", u"SortColumnIndex", u"ColumnAllowSorting");
constexpr auto sortingEvents = names(u"ColumnClick", u"SortDone");
constexpr auto finding = names(u"FindItem", u"ItemText", u"ItemTag");
constexpr auto checking = names(u"Style", u"ColumnCheckBoxes", u"ItemChecked", u"ItemsCheckedCount", u"RowChecked");
constexpr auto checkingEvents = names(u"ItemCheck", u"ItemChecked");
constexpr auto choosing = names(u"ListIndex", u"RowIndex", u"RowSelected", u"RowSelectedCount", u"RowsSelectedRemove", u"MultiSelect", u"FullRowSelect", u"ClickOnIndexChange");
constexpr auto choosingEvents = names(u"Click", u"ErrorWrongIndex");
constexpr auto pressing = names(u"ColumnIndex", u"RowIndex");
constexpr auto pressingEvents = names(u"ItemDown", u"ItemUp", u"ItemClick", u"ItemDblClick", u"MouseDown", u"MouseMove", u"MouseUp");
constexpr auto selectedLook = names(u"ItemBackColorSelect", u"ItemForeColorSelect", u"ItemIconSelected", u"ValueColor", u"HideSelection", u"FullRowSelect");
constexpr auto rows = names(u"RowsAdd", u"RowsRemove", u"RowsClear", u"RowsCount", u"RowsSelectedRemove", u"NewIndex");
constexpr auto columns = names(u"ColumnsAdd", u"ColumnsClear", u"ColumnsRemove", u"ColumnsCount");
constexpr auto widths = names(u"ColumnWidth", u"ColumnLeft", u"AutoColumnSize", u"FixColumns", u"ItemTextWidth", u"EmptyColumnFieldWidth");
constexpr auto checksOfIndices = names(u"WrongIndex", u"WrongColumnIndex");
constexpr auto painting = names(u"AutoRedraw", u"Redraw", u"ClearListView", u"AutoCheckScroll", u"CheckScroll");
constexpr auto filling = names(u"ContentInput", u"ContentSave", u"Recordset", u"RowsAdd");
constexpr auto rowColours = names(u"AutoRowColor", u"RowColorFirst", u"RowColorSecond", u"ItemBackColor", u"BackColor");
constexpr auto heights = names(u"RowsDynamic", u"RowHeight", u"TextPosition", u"TextPositionDefault");
constexpr auto cellIcons = names(u"ItemIcon", u"ItemIconSelected", u"ItemIconAlignment", u"DrawItemIcons", u"DefaultIconSelectedIsIcon", u"DistPicText", u"IconSelect");
constexpr auto cellIconSizes = names(u"IconW", u"IconH", u"ColumnItemIconW", u"ColumnItemIconH", u"ColumnAdjustItemIcons", u"ItemIcon");
constexpr auto headerIcons = names(u"ColumnIcon", u"ColumnIconHover", u"ColumnIconDown", u"ColumnIconAlignment", u"ColumnIconW", u"ColumnIconH", u"DrawColumnIcons");
constexpr auto cellTexts = names(u"ItemText", u"ItemAlignment", u"ItemTextWidth", u"ItemForeColor");
constexpr auto cellFonts = names(u"DefaultItemFont", u"DefaultItemForeColor", u"ItemForeColor", u"ItemFontName", u"ItemFontSize", u"ItemFontBold", u"ItemFontItalic", u"ItemFontUnderline", u"ItemFontStrikethrough");
constexpr auto headerTexts = names(u"ColumnText", u"ColumnAlignment", u"ColumnForeColor", u"ColumnForeColorHover", u"ColumnForeColorDown", u"DefaultColumnFont", u"DefaultColumnForeColor");
constexpr auto headers = names(u"HideColumnHeaders", u"ColumnTextY", u"MoveColumnTextAtDown", u"DefaultColumnFont");
constexpr auto ownScheme = names(u"ColorStyle", u"BorderColor", u"BorderVisible", u"ColumnBackColor", u"ColumnHoverColor", u"ColumnDownColor", u"EmptyColumnFieldColor", u"ValueColor");
constexpr auto schemes = names(u"ColorStyle", u"ScrollColorStyle", u"Skin");
constexpr auto barColours = names(u"ScrollColorStyle", u"ScrollBackColor", u"ScrollArrows", u"ScrollArrowsDown", u"ScrollArrowsHover", u"ScrollButtons", u"ScrollButtonsDown", u"ScrollButtonsHover", u"ScrollBar", u"ScrollBarDown", u"ScrollBarHover");
constexpr auto scrolling = names(u"TopIndex", u"WheelFunction", u"WheelScrollLines", u"ScrollButtonJumpLines");
constexpr auto scrollingEvents = names(u"Scroll");
constexpr auto keptForHosts = names(u"ItemTag", u"ItemToolTip", u"ColumnTag", u"ColumnKey", u"RowChecked");
constexpr auto dragging = names(u"OLEDragMode", u"OLEDropMode");
constexpr auto draggingEvents = names(u"OLEDragOver", u"OLEDragDrop", u"OLEStartDrag", u"OLESetData", u"OLEGiveFeedback", u"OLECompleteDrag");
constexpr auto hovering = names(u"CheckMouseOver");
constexpr auto hoveringEvents = names(u"ItemOver");
constexpr auto enabling = names(u"Enabled", u"RowEnabled", u"ItemEnabled");
constexpr auto disabledLook = names(u"BackColorDisabled", u"ItemForeColorDis", u"ItemBackColorDis", u"ItemEnabled");
constexpr auto indents = names(u"IndentTop", u"IndentLeft", u"IndentRight", u"IndentBottom");
constexpr auto background = names(u"BackColor", u"BackgroundPicture", u"BackColorDisabled");
constexpr auto grid = names(u"GridLines", u"GridLineColor");
constexpr auto objects = names(u"ItemObject");
constexpr auto objectEvents = names(u"ListViewError");
constexpr auto windows = names(u"hwnd", u"hwndEdit");
constexpr auto keyEvents = names(u"KeyDown", u"KeyPress", u"KeyUp");
constexpr auto clickEvents = names(u"Click", u"DblClick", u"ItemClick", u"ItemDblClick");

constexpr auto all = std::to_array<Family>({
    {editing, editingEvents}, {sorting, sortingEvents}, {finding, {}}, {checking, checkingEvents},
    {choosing, choosingEvents}, {pressing, pressingEvents}, {selectedLook, {}}, {rows, {}}, {columns, {}},
    {widths, {}}, {checksOfIndices, {}}, {painting, {}}, {filling, {}}, {rowColours, {}}, {heights, {}},
    {cellIcons, {}}, {cellIconSizes, {}}, {headerIcons, {}}, {cellTexts, {}}, {cellFonts, {}}, {headerTexts, {}},
    {headers, {}}, {ownScheme, {}}, {schemes, {}}, {barColours, {}}, {scrolling, scrollingEvents},
    {keptForHosts, {}}, {dragging, draggingEvents}, {hovering, hoveringEvents}, {enabling, {}}, {disabledLook, {}},
    {indents, {}}, {background, {}}, {grid, {}}, {objects, objectEvents}, {windows, {}}, {{}, keyEvents},
    {{}, clickEvents},
});
// clang-format on

} // namespace

std::span<const Family> families() {
    return all;
}

} // namespace lumtex::automation
