/// Members that read and write one field of a column.
#include "automation/describe_member.h"
#include "automation/member_table.h"

namespace lumtex {

namespace {

using namespace detail;

constexpr auto members = std::to_array<Member>({
    property<&lmListView::ColumnText, &lmListView::letColumnText>(
        200, u"ColumnText", Repaint::asAutoRedraw, u"Text of the header.", {u"Index"}),
    property<&lmListView::ColumnIcon, &lmListView::setColumnIcon>(
        201, u"ColumnIcon", Repaint::asAutoRedraw, u"Icon of the header.", {u"Index"}),
    property<&lmListView::ColumnIconHover, &lmListView::setColumnIconHover>(
        202,
        u"ColumnIconHover",
        Repaint::asAutoRedraw,
        u"Icon of the header while the pointer is over it.",
        {u"Index"}),
    property<&lmListView::ColumnIconDown, &lmListView::setColumnIconDown>(
        203,
        u"ColumnIconDown",
        Repaint::asAutoRedraw,
        u"Icon of the header while it is pressed.",
        {u"Index"}),
    readOnly<&lmListView::ColumnLeft>(
        204,
        u"ColumnLeft",
        u"Left edge of the header in twips. Goes stale when a column before it is resized by code.",
        {u"Index"}),
    property<&lmListView::ColumnWidth, &lmListView::letColumnWidth>(
        205,
        u"ColumnWidth",
        Repaint::asAutoRedraw,
        u"Width in twips. The columns to the right keep their ColumnLeft.",
        {u"Index"}),
    property<&lmListView::ColumnTag, &lmListView::letColumnTag>(
        206, u"ColumnTag", Repaint::asAutoRedraw, u"Text that the control keeps for the host.", {u"Index"}),
    property<&lmListView::ColumnKey, &lmListView::letColumnKey>(
        207,
        u"ColumnKey",
        Repaint::asAutoRedraw,
        u"Text that the control keeps for the host. No column is found by it.",
        {u"Index"}),
    property<&lmListView::ColumnAlignment, &lmListView::letColumnAlignment>(
        208, u"ColumnAlignment", Repaint::asAutoRedraw, u"Place of the header text.", {u"Index"}),
    property<&lmListView::ColumnIconAlignment, &lmListView::letColumnIconAlignment>(
        209, u"ColumnIconAlignment", Repaint::asAutoRedraw, u"Place of the header icon.", {u"Index"}),
    property<&lmListView::ColumnForeColor, &lmListView::letColumnForeColor>(
        210, u"ColumnForeColor", Repaint::asAutoRedraw, u"Colour of the header text.", {u"Index"}),
    property<&lmListView::ColumnForeColorHover, &lmListView::letColumnForeColorHover>(
        211,
        u"ColumnForeColorHover",
        Repaint::asAutoRedraw,
        u"Colour of the header text while the pointer is over it.",
        {u"Index"}),
    property<&lmListView::ColumnForeColorDown, &lmListView::letColumnForeColorDown>(
        212,
        u"ColumnForeColorDown",
        Repaint::asAutoRedraw,
        u"Colour of the header text while the header is pressed.",
        {u"Index"}),
    property<&lmListView::ColumnAllowSorting, &lmListView::letColumnAllowSorting>(
        213,
        u"ColumnAllowSorting",
        Repaint::asAutoRedraw,
        u"Whether a click on the header sorts.",
        {u"Index"}),
    property<&lmListView::ColumnCheckBoxes, &lmListView::letColumnCheckBoxes>(
        214,
        u"ColumnCheckBoxes",
        Repaint::asAutoRedraw,
        u"Whether the cells of the column show check boxes.",
        {u"Index"}),
    property<&lmListView::ColumnAdjustItemIcons, &lmListView::letColumnAdjustItemIcons>(
        215,
        u"ColumnAdjustItemIcons",
        Repaint::asAutoRedraw,
        u"Whether cell icons are scaled to the icon size of the column.",
        {u"Index"}),
    property<&lmListView::ColumnItemIconH, &lmListView::letColumnItemIconH>(
        216,
        u"ColumnItemIconH",
        Repaint::asAutoRedraw,
        u"True for any icon height but 0. Assigning stores 0 or -1; the real height comes from IconH as the "
        u"column is added.",
        {u"Index"}),
    property<&lmListView::ColumnItemIconW, &lmListView::letColumnItemIconW>(
        217,
        u"ColumnItemIconW",
        Repaint::asAutoRedraw,
        u"True for any icon width but 0. Assigning stores 0 or -1; the real width comes from IconW as the "
        u"column is added.",
        {u"Index"}),
});

} // namespace

std::span<const Member> columnMembers() {
    return members;
}

} // namespace lumtex
