/// Members that read and write one field of a row.
#include "automation/describe_member.h"
#include "automation/member_table.h"

namespace lumtex {

namespace {

using namespace detail;

constexpr auto members = std::to_array<Member>({
    property<&lmListView::RowEnabled, &lmListView::letRowEnabled>(
        u"RowEnabled",
        Repaint::asAutoRedraw,
        u"Whether the row can be chosen. Assigning enables or disables its cells too.",
        {u"Index"}),
    property<&lmListView::RowSelected, &lmListView::letRowSelected>(
        u"RowSelected",
        Repaint::asAutoRedraw,
        u"Whether the row is selected. Selecting scrolls to it, and without MultiSelect drops the other "
        u"rows. ListIndex does not follow.",
        {u"Index"}),
    property<&lmListView::RowChecked, &lmListView::letRowChecked>(
        u"RowChecked",
        Repaint::asAutoRedraw,
        u"Check mark of the row. Those of its cells are not touched.",
        {u"Index"}),
    property<&lmListView::TextPosition, &lmListView::letTextPosition>(
        u"TextPosition", Repaint::asAutoRedraw, u"Vertical place of the text in the row.", {u"Index"}),
});

} // namespace

std::span<const Member> rowMembers() {
    return members;
}

} // namespace lumtex
