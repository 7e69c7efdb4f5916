/// The control-level properties, out of their table.
#include "automation/describe_member.h"
#include "automation/member_table.h"
#include "model/property_table.h"

namespace lumtex::automation {

namespace {

using namespace detail;

constexpr Repaint repaintOf(After after) {
    return repaints(after)          ? Repaint::always
           : checksForRedraw(after) ? Repaint::asAutoRedraw
                                    : Repaint::never;
}

/// The row at `place`, where there are functions for it, behind the members before it.
template <std::size_t place>
constexpr Member memberOf() {
    constexpr const auto& row = std::get<place>(property_table::rows);
    return property<row.get, row.let>(row.number, row.name, repaintOf(row.after));
}

constexpr Member recordset =
    hidden(property<&lmListView::Recordset, &lmListView::setRecordset>(168, u"Recordset", Repaint::always));

/// The last row of the table is reached by the property bag alone.
template <std::size_t... places>
constexpr std::array<Member, sizeof...(places) + 1> membersOf(std::index_sequence<places...> /*rows*/) {
    return {memberOf<places>()..., recordset};
}

constexpr auto members = membersOf(std::make_index_sequence<propertyCount - 1>{});

} // namespace

std::span<const Member> propertyMembers() {
    return members;
}

} // namespace lumtex::automation
