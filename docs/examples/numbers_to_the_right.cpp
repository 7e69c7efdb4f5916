/// The header and each cell are aligned on their own.
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    list.letColumnAlignment(3, cColumnRight); // the header alone
    for (Long row = 1; row <= list.RowsCount(); ++row)
        list.letItemAlignment(row, 3, cItemRight);
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
