/// Check boxes in a column.
/// Prints: checked: 2
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    list.letStyle(cCheckBoxes);
    list.letColumnCheckBoxes(1, true);
    list.letItemChecked(2, 1, true);
    list.letItemChecked(4, 1, true);
    program.out << "checked: " << list.ItemsCheckedCount(1) << '\n';
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
