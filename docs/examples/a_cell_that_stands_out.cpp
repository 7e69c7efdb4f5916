/// Looks belong to cells.
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    list.letItemFontBold(3, 3, true);
    list.letItemForeColor(3, 3, 0x0000C0);
    list.letItemBackColor(3, 3, 0xD8F4FF);
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
