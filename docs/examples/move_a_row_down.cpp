/// The texts of two rows change places.
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    const Long row = 2;
    for (Long column = 1; column <= list.ColumnsCount(); ++column) {
        const String text = list.ItemText(row, column);
        list.letItemText(row, column, list.ItemText(row + 1, column));
        list.letItemText(row + 1, column, text);
    }
    list.letRowSelected(row + 1, true);
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
