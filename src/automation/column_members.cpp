/// Members that read and write one field of a column.
#include "automation/describe_member.h"
#include "automation/member_table.h"

namespace lumtex::automation {

namespace {

using namespace detail;

constexpr auto members = std::to_array<Member>({
    property<&lmListView::ColumnText, &lmListView::letColumnText>(
        200, u"ColumnText", Repaint::asAutoRedraw, {u"Index"}),
    property<&lmListView::ColumnIcon, &lmListView::setColumnIcon>(
        201, u"ColumnIcon", Repaint::asAutoRedraw, {u"Index"}),
    property<&lmListView::ColumnIconHover, &lmListView::setColumnIconHover>(
        202, u"ColumnIconHover", Repaint::asAutoRedraw, {u"Index"}),
    property<&lmListView::ColumnIconDown, &lmListView::setColumnIconDown>(
        203, u"ColumnIconDown", Repaint::asAutoRedraw, {u"Index"}),
    readOnly<&lmListView::ColumnLeft>(204, u"ColumnLeft", {u"Index"}),
    property<&lmListView::ColumnWidth, &lmListView::letColumnWidth>(
        205, u"ColumnWidth", Repaint::asAutoRedraw, {u"Index"}),
    property<&lmListView::ColumnTag, &lmListView::letColumnTag>(
        206, u"ColumnTag", Repaint::asAutoRedraw, {u"Index"}),
    property<&lmListView::ColumnKey, &lmListView::letColumnKey>(
        207, u"ColumnKey", Repaint::asAutoRedraw, {u"Index"}),
    property<&lmListView::ColumnAlignment, &lmListView::letColumnAlignment>(
        208, u"ColumnAlignment", Repaint::asAutoRedraw, {u"Index"}),
    property<&lmListView::ColumnIconAlignment, &lmListView::letColumnIconAlignment>(
        209, u"ColumnIconAlignment", Repaint::asAutoRedraw, {u"Index"}),
    property<&lmListView::ColumnForeColor, &lmListView::letColumnForeColor>(
        210, u"ColumnForeColor", Repaint::asAutoRedraw, {u"Index"}),
    property<&lmListView::ColumnForeColorHover, &lmListView::letColumnForeColorHover>(
        211, u"ColumnForeColorHover", Repaint::asAutoRedraw, {u"Index"}),
    property<&lmListView::ColumnForeColorDown, &lmListView::letColumnForeColorDown>(
        212, u"ColumnForeColorDown", Repaint::asAutoRedraw, {u"Index"}),
    property<&lmListView::ColumnAllowSorting, &lmListView::letColumnAllowSorting>(
        213, u"ColumnAllowSorting", Repaint::asAutoRedraw, {u"Index"}),
    property<&lmListView::ColumnCheckBoxes, &lmListView::letColumnCheckBoxes>(
        214, u"ColumnCheckBoxes", Repaint::asAutoRedraw, {u"Index"}),
    property<&lmListView::ColumnAdjustItemIcons, &lmListView::letColumnAdjustItemIcons>(
        215, u"ColumnAdjustItemIcons", Repaint::asAutoRedraw, {u"Index"}),
    property<&lmListView::ColumnItemIconH, &lmListView::letColumnItemIconH>(
        216, u"ColumnItemIconH", Repaint::asAutoRedraw, {u"Index"}),
    property<&lmListView::ColumnItemIconW, &lmListView::letColumnItemIconW>(
        217, u"ColumnItemIconW", Repaint::asAutoRedraw, {u"Index"}),
});

} // namespace

std::span<const Member> columnMembers() {
    return members;
}

} // namespace lumtex::automation
