/// The control-level properties.
#include "automation/describe_member.h"
#include "automation/member_table.h"

namespace lumtex {

namespace {

using namespace detail;

constexpr auto members = std::to_array<Member>({
    property<&lmListView::DefaultItemFont, &lmListView::setDefaultItemFont>(
        u"DefaultItemFont",
        Repaint::asAutoRedraw,
        u"Font of new cells. A clone is kept, and existing cells keep theirs."),
    property<&lmListView::DefaultItemForeColor, &lmListView::letDefaultItemForeColor>(
        u"DefaultItemForeColor",
        Repaint::asAutoRedraw,
        u"Text colour of new cells. Existing cells keep theirs."),
    property<&lmListView::BackColor, &lmListView::letBackColor>(
        u"BackColor", Repaint::always, u"Background of the list."),
    property<&lmListView::BackColorDisabled, &lmListView::letBackColorDisabled>(
        u"BackColorDisabled", Repaint::always, u"Background of the list while the control is disabled."),
    property<&lmListView::Enabled, &lmListView::letEnabled>(
        u"Enabled", Repaint::always, u"Whether the control takes presses and keys. The scroll bars follow."),
    property<&lmListView::ClickOnIndexChange, &lmListView::letClickOnIndexChange>(
        u"ClickOnIndexChange",
        Repaint::never,
        u"Whether assigning ListIndex raises Click before the index changes."),
    property<&lmListView::ColorStyle, &lmListView::letColorStyle>(
        u"ColorStyle",
        Repaint::asAutoRedraw,
        u"Scheme of headers and selection. Any but cCustom is handed on to ScrollColorStyle."),
    property<&lmListView::BorderColor, &lmListView::letBorderColor>(
        u"BorderColor", Repaint::always, u"Colour of the border in the custom scheme."),
    property<&lmListView::Style, &lmListView::letStyle>(
        u"Style", Repaint::asAutoRedraw, u"Whether rows show check boxes."),
    property<&lmListView::FullRowSelect, &lmListView::letFullRowSelect>(
        u"FullRowSelect",
        Repaint::asAutoRedraw,
        u"Whether the selection covers all columns or the first alone."),
    property<&lmListView::AllowEdit, &lmListView::letAllowEdit>(
        u"AllowEdit",
        Repaint::never,
        u"Whether a second press opens the in-place editor, in cells that allow it too."),
    property<&lmListView::ValueColor, &lmListView::letValueColor>(
        u"ValueColor", Repaint::asAutoRedraw, u"Background of selected cells in the custom scheme."),
    property<&lmListView::BorderVisible, &lmListView::letBorderVisible>(
        u"BorderVisible", Repaint::asAutoRedraw, u"Whether a border is drawn."),
    property<&lmListView::IndentTop, &lmListView::letIndentTop>(
        u"IndentTop", Repaint::asAutoRedraw, u"Kept for the host in pixels; painting does not use it."),
    property<&lmListView::IndentLeft, &lmListView::letIndentLeft>(
        u"IndentLeft", Repaint::asAutoRedraw, u"Kept for the host in pixels; painting does not use it."),
    property<&lmListView::IndentRight, &lmListView::letIndentRight>(
        u"IndentRight", Repaint::asAutoRedraw, u"Kept for the host in pixels; painting does not use it."),
    property<&lmListView::IndentBottom, &lmListView::letIndentBottom>(
        u"IndentBottom", Repaint::asAutoRedraw, u"Kept for the host in pixels; painting does not use it."),
    property<&lmListView::DistPicText, &lmListView::letDistPicText>(
        u"DistPicText", Repaint::asAutoRedraw, u"Pixels between icon and text."),
    property<&lmListView::AutoCheckScroll, &lmListView::letAutoCheckScroll>(
        u"AutoCheckScroll",
        Repaint::never,
        u"Whether a change of the content checks the scroll bars. Switching it on checks them at once."),
    property<&lmListView::AutoRedraw, &lmListView::letAutoRedraw>(
        u"AutoRedraw",
        Repaint::always,
        u"Whether a change repaints at once. Switch it off around bulk changes; switching it on repaints."),
    property<&lmListView::IconSelect, &lmListView::letIconSelect>(
        u"IconSelect", Repaint::asAutoRedraw, u"Kept for the host; painting does not use it."),
    property<&lmListView::IconW, &lmListView::letIconW>(
        u"IconW", Repaint::asAutoRedraw, u"Width of cell icons in pixels, for columns added later."),
    property<&lmListView::IconH, &lmListView::letIconH>(
        u"IconH", Repaint::asAutoRedraw, u"Height of cell icons in pixels, for columns added later."),
    property<&lmListView::ColumnIconW, &lmListView::letColumnIconW>(
        u"ColumnIconW", Repaint::asAutoRedraw, u"Width of header icons in pixels."),
    property<&lmListView::ColumnIconH, &lmListView::letColumnIconH>(
        u"ColumnIconH", Repaint::asAutoRedraw, u"Height of header icons in pixels."),
    property<&lmListView::ScrollColorStyle, &lmListView::letScrollColorStyle>(
        u"ScrollColorStyle", Repaint::never, u"Scheme of the scroll bars."),
    property<&lmListView::GridLines, &lmListView::letGridLines>(
        u"GridLines", Repaint::asAutoRedraw, u"Whether lines are drawn between cells."),
    property<&lmListView::GridLineColor, &lmListView::letGridLineColor>(
        u"GridLineColor", Repaint::asAutoRedraw, u"Colour of the lines between cells."),
    property<&lmListView::MultiSelect, &lmListView::letMultiSelect>(
        u"MultiSelect", Repaint::never, u"Whether several rows can be selected."),
    property<&lmListView::HideColumnHeaders, &lmListView::letHideColumnHeaders>(
        u"HideColumnHeaders", Repaint::asAutoRedraw, u"Whether the headers are left out."),
    property<&lmListView::ColumnTextY, &lmListView::letColumnTextY>(
        u"ColumnTextY", Repaint::asAutoRedraw, u"Pixels above the text of a header."),
    property<&lmListView::MoveColumnTextAtDown, &lmListView::letMoveColumnTextAtDown>(
        u"MoveColumnTextAtDown", Repaint::never, u"Whether a pressed header moves its text by a pixel."),
    property<&lmListView::DefaultColumnFont, &lmListView::setDefaultColumnFont>(
        u"DefaultColumnFont", Repaint::asAutoRedraw, u"Font of all headers. A clone is kept."),
    property<&lmListView::DefaultColumnForeColor, &lmListView::letDefaultColumnForeColor>(
        u"DefaultColumnForeColor",
        Repaint::asAutoRedraw,
        u"Text colour of headers while a column is being added."),
    property<&lmListView::EmptyColumnFieldWidth, &lmListView::letEmptyColumnFieldWidth>(
        u"EmptyColumnFieldWidth", Repaint::asAutoRedraw, u"Twips of free space behind the last column."),
    property<&lmListView::ColumnBackColor, &lmListView::letColumnBackColor>(
        u"ColumnBackColor", Repaint::asAutoRedraw, u"Background of headers in the custom scheme."),
    property<&lmListView::ColumnHoverColor, &lmListView::letColumnHoverColor>(
        u"ColumnHoverColor",
        Repaint::asAutoRedraw,
        u"Background of the header under the pointer in the custom scheme."),
    property<&lmListView::ColumnDownColor, &lmListView::letColumnDownColor>(
        u"ColumnDownColor", Repaint::asAutoRedraw, u"Background of the pressed header in the custom scheme."),
    property<&lmListView::RowsDynamic, &lmListView::letRowsDynamic>(
        u"RowsDynamic",
        Repaint::asAutoRedraw,
        u"Whether each row is as high as its content needs, or RowHeight."),
    property<&lmListView::RowHeight, &lmListView::letRowHeight>(
        u"RowHeight", Repaint::asAutoRedraw, u"Height of a row in twips, where RowsDynamic is False."),
    property<&lmListView::ScrollBackColor, &lmListView::letScrollBackColor>(
        u"ScrollBackColor", Repaint::asAutoRedraw, u"Trough of the scroll bars in the custom scheme."),
    property<&lmListView::ScrollArrows, &lmListView::letScrollArrows>(
        u"ScrollArrows", Repaint::asAutoRedraw, u"Arrows of the scroll bars in the custom scheme."),
    property<&lmListView::ScrollButtons, &lmListView::letScrollButtons>(
        u"ScrollButtons", Repaint::asAutoRedraw, u"Arrow buttons of the scroll bars in the custom scheme."),
    property<&lmListView::ScrollBar, &lmListView::letScrollBar>(
        u"ScrollBar", Repaint::asAutoRedraw, u"Thumbs of the scroll bars in the custom scheme."),
    property<&lmListView::ScrollArrowsDown, &lmListView::letScrollArrowsDown>(
        u"ScrollArrowsDown", Repaint::asAutoRedraw, u"Arrows while pressed, in the custom scheme."),
    property<&lmListView::ScrollButtonsDown, &lmListView::letScrollButtonsDown>(
        u"ScrollButtonsDown", Repaint::asAutoRedraw, u"Arrow buttons while pressed, in the custom scheme."),
    property<&lmListView::ScrollBarDown, &lmListView::letScrollBarDown>(
        u"ScrollBarDown", Repaint::asAutoRedraw, u"Thumbs while pressed, in the custom scheme."),
    property<&lmListView::ScrollArrowsHover, &lmListView::letScrollArrowsHover>(
        u"ScrollArrowsHover", Repaint::asAutoRedraw, u"Arrows under the pointer, in the custom scheme."),
    property<&lmListView::ScrollButtonsHover, &lmListView::letScrollButtonsHover>(
        u"ScrollButtonsHover",
        Repaint::asAutoRedraw,
        u"Arrow buttons under the pointer, in the custom scheme."),
    property<&lmListView::ScrollBarHover, &lmListView::letScrollBarHover>(
        u"ScrollBarHover", Repaint::asAutoRedraw, u"Thumbs under the pointer, in the custom scheme."),
    property<&lmListView::EmptyColumnFieldColor, &lmListView::letEmptyColumnFieldColor>(
        u"EmptyColumnFieldColor",
        Repaint::asAutoRedraw,
        u"Colour of the header area behind the last column."),
    property<&lmListView::WheelFunction, &lmListView::letWheelFunction>(
        u"WheelFunction", Repaint::never, u"What the wheel moves: the view, the current row, or nothing."),
    property<&lmListView::WheelScrollLines, &lmListView::letWheelScrollLines>(
        u"WheelScrollLines", Repaint::never, u"Rows that one notch of the wheel moves."),
    property<&lmListView::DefaultIconSelectedIsIcon, &lmListView::letDefaultIconSelectedIsIcon>(
        u"DefaultIconSelectedIsIcon",
        Repaint::asAutoRedraw,
        u"Whether a selected cell without a picture of its own for that shows its plain icon."),
    property<&lmListView::ScrollButtonJumpLines, &lmListView::letScrollButtonJumpLines>(
        u"ScrollButtonJumpLines",
        Repaint::never,
        u"Rows that one press of an arrow button moves. A number below 1 is dropped."),
    property<&lmListView::TextPositionDefault, &lmListView::letTextPositionDefault>(
        u"TextPositionDefault",
        Repaint::asAutoRedraw,
        u"Vertical place of the text in rows added later. The host is not told of the change."),
    property<&lmListView::DrawItemIcons, &lmListView::letDrawItemIcons>(
        u"DrawItemIcons", Repaint::always, u"Whether cell icons are drawn."),
    property<&lmListView::DrawColumnIcons, &lmListView::letDrawColumnIcons>(
        u"DrawColumnIcons", Repaint::always, u"Whether header icons are drawn."),
    property<&lmListView::BackgroundPicture, &lmListView::setBackgroundPicture>(
        u"BackgroundPicture", Repaint::always, u"Picture that fills the background of the list."),
    property<&lmListView::Skin, &lmListView::setSkin>(
        u"Skin",
        Repaint::always,
        u"Strip of pictures that the headers are drawn with; none for the built-in one."),
    property<&lmListView::FixColumns, &lmListView::letFixColumns>(
        u"FixColumns", Repaint::never, u"Whether columns keep their widths under the mouse."),
    property<&lmListView::CheckMouseOver, &lmListView::letCheckMouseOver>(
        u"CheckMouseOver", Repaint::never, u"Whether the header under the pointer changes its look."),
    property<&lmListView::OLEDragMode, &lmListView::letOLEDragMode>(
        u"OLEDragMode", Repaint::never, u"How a drag from the control starts; 2 allows copying and moving."),
    property<&lmListView::OLEDropMode, &lmListView::letOLEDropMode>(
        u"OLEDropMode", Repaint::never, u"Whether the control takes drops."),
    property<&lmListView::AutoRowColor, &lmListView::letAutoRowColor>(
        u"AutoRowColor", Repaint::asAutoRedraw, u"Whether rows take turns with two background colours."),
    property<&lmListView::RowColorFirst, &lmListView::letRowColorFirst>(
        u"RowColorFirst", Repaint::asAutoRedraw, u"Background of every other row, from the first on."),
    property<&lmListView::RowColorSecond, &lmListView::letRowColorSecond>(
        u"RowColorSecond", Repaint::asAutoRedraw, u"Background of the rows between."),
    property<&lmListView::HideSelection, &lmListView::letHideSelection>(
        u"HideSelection",
        Repaint::asAutoRedraw,
        u"Whether the selection is hidden while the control has no focus."),
    hidden(property<&lmListView::Recordset, &lmListView::setRecordset>(
        u"Recordset",
        Repaint::always,
        u"Assigning an object with RecordCount, fields, MoveFirst, MoveNext and EOF takes its fields as "
        u"columns and its records as rows, once. A comma in a value splits it. RecordCount not above 0 "
        u"changes "
        u"nothing and repaints nothing.")),
});

} // namespace

std::span<const Member> propertyMembers() {
    return members;
}

} // namespace lumtex
