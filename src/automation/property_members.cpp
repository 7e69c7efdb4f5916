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
    return property<row.get, row.let>(row.number, row.name, repaintOf(row.after), row.help);
}

constexpr Member recordset = hidden(property<&lmListView::Recordset, &lmListView::setRecordset>(
    168,
    u"Recordset",
    Repaint::always,
    {u"Assigning an object with RecordCount, fields, MoveFirst, MoveNext and EOF takes its fields as "
     u"columns and its records as rows, once. A comma in a value splits it. RecordCount not above 0 "
     u"changes nothing and repaints nothing.",
     u"Die Zuweisung eines Objekts mit RecordCount, fields, MoveFirst, MoveNext und EOF übernimmt "
     u"einmalig dessen Felder als Spalten und dessen Datensätze als Zeilen. Ein Komma teilt einen Wert. "
     u"Ist RecordCount nicht größer als 0, ändert sich nichts, und nichts wird gezeichnet."}));

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
