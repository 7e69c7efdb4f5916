/// Rows that the user or the program selects.
/// Prints: selected: 2
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    list.letMultiSelect(true);
    list.letRowSelected(1, true);
    list.letRowSelected(4, true);
    program.out << "selected: " << list.RowSelectedCount() << '\n';
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
