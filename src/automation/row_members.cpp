/// Members that read and write one field of a row.
#include "automation/describe_member.h"
#include "automation/member_table.h"

namespace lumtex::automation {

namespace {

using namespace detail;

constexpr auto members = std::to_array<Member>({
    property<&lmListView::RowEnabled, &lmListView::letRowEnabled>(
        300, u"RowEnabled", Repaint::asAutoRedraw, {u"Index"}),
    property<&lmListView::RowSelected, &lmListView::letRowSelected>(
        301, u"RowSelected", Repaint::asAutoRedraw, {u"Index"}),
    property<&lmListView::RowChecked, &lmListView::letRowChecked>(
        302, u"RowChecked", Repaint::asAutoRedraw, {u"Index"}),
    property<&lmListView::TextPosition, &lmListView::letTextPosition>(
        303, u"TextPosition", Repaint::asAutoRedraw, {u"Index"}),
});

} // namespace

std::span<const Member> rowMembers() {
    return members;
}

} // namespace lumtex::automation
