/// Members that read and write one field of a cell.
#include "automation/describe_member.h"
#include "automation/member_table.h"

namespace lumtex {

namespace {

using namespace detail;

constexpr auto members = std::to_array<Member>({
    property<&lmListView::ItemFontBold, &lmListView::letItemFontBold>(
        u"ItemFontBold", Repaint::asAutoRedraw, u"Whether the text is bold.", {u"Row", u"Column"}),
    property<&lmListView::ItemFontItalic, &lmListView::letItemFontItalic>(
        u"ItemFontItalic", Repaint::asAutoRedraw, u"Whether the text is italic.", {u"Row", u"Column"}),
    property<&lmListView::ItemFontUnderline, &lmListView::letItemFontUnderline>(
        u"ItemFontUnderline", Repaint::asAutoRedraw, u"Whether the text is underlined.", {u"Row", u"Column"}),
    property<&lmListView::ItemFontStrikethrough, &lmListView::letItemFontStrikethrough>(
        u"ItemFontStrikethrough",
        Repaint::asAutoRedraw,
        u"Whether the text is struck through.",
        {u"Row", u"Column"}),
    property<&lmListView::ItemFontSize, &lmListView::letItemFontSize>(
        u"ItemFontSize", Repaint::asAutoRedraw, u"Size of the text in points.", {u"Row", u"Column"}),
    property<&lmListView::ItemFontName, &lmListView::letItemFontName>(
        u"ItemFontName", Repaint::asAutoRedraw, u"Typeface of the text.", {u"Row", u"Column"}),
    property<&lmListView::ItemForeColor, &lmListView::letItemForeColor>(
        u"ItemForeColor", Repaint::asAutoRedraw, u"Colour of the text.", {u"Row", u"Column"}),
    property<&lmListView::ItemBackColor, &lmListView::letItemBackColor>(
        u"ItemBackColor",
        Repaint::asAutoRedraw,
        u"Background of the cell, or \"def\" for that of the list.",
        {u"Row", u"Column"}),
    property<&lmListView::ItemForeColorSelect, &lmListView::letItemForeColorSelect>(
        u"ItemForeColorSelect",
        Repaint::asAutoRedraw,
        u"Colour of the text while selected, or \"def\" for white.",
        {u"Row", u"Column"}),
    property<&lmListView::ItemBackColorSelect, &lmListView::letItemBackColorSelect>(
        u"ItemBackColorSelect",
        Repaint::asAutoRedraw,
        u"Background while selected, or \"def\" for the colour of the scheme.",
        {u"Row", u"Column"}),
    property<&lmListView::ItemForeColorDis, &lmListView::letItemForeColorDis>(
        u"ItemForeColorDis",
        Repaint::asAutoRedraw,
        u"Colour of the text while disabled.",
        {u"Row", u"Column"}),
    property<&lmListView::ItemBackColorDis, &lmListView::letItemBackColorDis>(
        u"ItemBackColorDis", Repaint::asAutoRedraw, u"Background while disabled.", {u"Row", u"Column"}),
    property<&lmListView::ItemTag, &lmListView::letItemTag>(
        u"ItemTag", Repaint::never, u"Value that the control keeps for the host.", {u"Row", u"Column"}),
    property<&lmListView::ItemEnabled, &lmListView::letItemEnabled>(
        u"ItemEnabled",
        Repaint::never,
        u"Whether the cell is enabled. Shown by the next paint.",
        {u"Row", u"Column"}),
    property<&lmListView::ItemIcon, &lmListView::setItemIcon>(
        u"ItemIcon", Repaint::asAutoRedraw, u"Icon of the cell.", {u"Row", u"Column"}),
    property<&lmListView::ItemIconSelected, &lmListView::setItemIconSelected>(
        u"ItemIconSelected", Repaint::asAutoRedraw, u"Icon of the cell while selected.", {u"Row", u"Column"}),
    property<&lmListView::ItemAllowEdit, &lmListView::letItemAllowEdit>(
        u"ItemAllowEdit",
        Repaint::asAutoRedraw,
        u"Whether the cell may be edited in place.",
        {u"Row", u"Column"}),
    property<&lmListView::ItemChecked, &lmListView::letItemChecked>(
        u"ItemChecked",
        Repaint::asAutoRedraw,
        u"Check mark of the cell. The count of its column follows; no event is raised.",
        {u"Row", u"Column"}),
    property<&lmListView::ItemAlignment, &lmListView::letItemAlignment>(
        u"ItemAlignment", Repaint::asAutoRedraw, u"Place of the text.", {u"Row", u"Column"}),
    property<&lmListView::ItemIconAlignment, &lmListView::letItemIconAlignment>(
        u"ItemIconAlignment", Repaint::asAutoRedraw, u"Place of the icon.", {u"Row", u"Column"}),
    property<&lmListView::ItemText, &lmListView::letItemText>(
        u"ItemText", Repaint::asAutoRedraw, u"Text of the cell.", {u"Row", u"Column"}),
    property<&lmListView::ItemToolTip, &lmListView::letItemToolTip>(
        u"ItemToolTip", Repaint::asAutoRedraw, u"Tool tip of the cell.", {u"Row", u"Column"}),
    readOnly<&lmListView::ItemTextWidth>(
        u"ItemTextWidth",
        u"Width of the text in pixels, as the last paint measured it; 0 for a cell never painted.",
        {u"Row", u"Column"}),
    property<&lmListView::ItemObject, &lmListView::setItemObject>(
        u"ItemObject",
        Repaint::asAutoRedraw,
        u"Control of the host that is shown over the cell. One with a window becomes a child of the list. A "
        u"failure is told by ListViewError.",
        {u"Row", u"Column"}),
    method<&lmListView::ItemsCheckedCount>(
        u"ItemsCheckedCount",
        Repaint::never,
        u"Checked cells of a column; of all columns for a number that no column has.",
        {orNumber(u"Column", 0)}),
});

} // namespace

std::span<const Member> itemMembers() {
    return members;
}

} // namespace lumtex
