/// All selected rows go at once.
/// Prints: left: 3
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    list.letMultiSelect(true);
    list.letRowSelected(2, true);
    list.letRowSelected(3, true);
    list.RowsSelectedRemove();
    list.letListIndex(-1); // it is not corrected by itself
    program.out << "left: " << list.RowsCount() << '\n';
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
