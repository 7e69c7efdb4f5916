/// The current row is found again by its tag.
/// Prints: still Oslo
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    for (Long row = 1; row <= list.RowsCount(); ++row)
        list.letItemTag(row, 1, row); // a number of the program's own
    list.letRowIndex(2);
    list.letRowSelected(2, true);

    const Variant current = list.ItemTag(list.RowIndex(), 1);
    list.Sort(1, cAscending);
    for (Long row = 1; row <= list.RowsCount(); ++row)
        if (list.ItemTag(row, 1) == current)
            list.letRowIndex(row); // the current row, which need not be a selected one
    program.out << "still " << toUtf8(list.ItemText(list.RowIndex(), 1)) << '\n';
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
