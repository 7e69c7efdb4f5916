/// Countries, and the cities of each.
/// Prints: Bergen, Oslo
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    list.ColumnsAdd(u"", nullptr, nullptr, nullptr, cColumnLeft, 0); // no width: nobody sees it
    for (Long row = 1; row <= list.RowsCount(); ++row)
        list.letItemText(row, 4, list.ItemText(row, 2) + u'\t' + list.ItemText(row, 1));
    list.Sort(4, cAscending);
    list.Sort(-1); // takes the mark off that header, and paints
    program.out << toUtf8(list.ItemText(3, 1) + u", " + list.ItemText(4, 1)) << '\n';
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
