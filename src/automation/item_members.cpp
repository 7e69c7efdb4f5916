/// Members that read and write one field of a cell.
#include "automation/describe_member.h"
#include "automation/member_table.h"

namespace lumtex::automation {

namespace {

using namespace detail;

constexpr auto members = std::to_array<Member>({
    property<&lmListView::ItemFontBold, &lmListView::letItemFontBold>(
        400, u"ItemFontBold", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemFontItalic, &lmListView::letItemFontItalic>(
        401, u"ItemFontItalic", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemFontUnderline, &lmListView::letItemFontUnderline>(
        402, u"ItemFontUnderline", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemFontStrikethrough, &lmListView::letItemFontStrikethrough>(
        403, u"ItemFontStrikethrough", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemFontSize, &lmListView::letItemFontSize>(
        404, u"ItemFontSize", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemFontName, &lmListView::letItemFontName>(
        405, u"ItemFontName", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemForeColor, &lmListView::letItemForeColor>(
        406, u"ItemForeColor", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemBackColor, &lmListView::letItemBackColor>(
        407, u"ItemBackColor", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemForeColorSelect, &lmListView::letItemForeColorSelect>(
        408, u"ItemForeColorSelect", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemBackColorSelect, &lmListView::letItemBackColorSelect>(
        409, u"ItemBackColorSelect", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemForeColorDis, &lmListView::letItemForeColorDis>(
        410, u"ItemForeColorDis", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemBackColorDis, &lmListView::letItemBackColorDis>(
        411, u"ItemBackColorDis", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemTag, &lmListView::letItemTag>(
        412, u"ItemTag", Repaint::never, {u"Row", u"Column"}),
    property<&lmListView::ItemEnabled, &lmListView::letItemEnabled>(
        413, u"ItemEnabled", Repaint::never, {u"Row", u"Column"}),
    property<&lmListView::ItemIcon, &lmListView::setItemIcon>(
        414, u"ItemIcon", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemIconSelected, &lmListView::setItemIconSelected>(
        415, u"ItemIconSelected", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemAllowEdit, &lmListView::letItemAllowEdit>(
        416, u"ItemAllowEdit", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemChecked, &lmListView::letItemChecked>(
        417, u"ItemChecked", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemAlignment, &lmListView::letItemAlignment>(
        418, u"ItemAlignment", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemIconAlignment, &lmListView::letItemIconAlignment>(
        419, u"ItemIconAlignment", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemText, &lmListView::letItemText>(
        420, u"ItemText", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    property<&lmListView::ItemToolTip, &lmListView::letItemToolTip>(
        421, u"ItemToolTip", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    readOnly<&lmListView::ItemTextWidth>(422, u"ItemTextWidth", {u"Row", u"Column"}),
    property<&lmListView::ItemObject, &lmListView::setItemObject>(
        423, u"ItemObject", Repaint::asAutoRedraw, {u"Row", u"Column"}),
    method<&lmListView::ItemsCheckedCount>(
        424, u"ItemsCheckedCount", Repaint::never, {orNumber(u"Column", 0)}),
});

} // namespace

std::span<const Member> itemMembers() {
    return members;
}

} // namespace lumtex::automation
