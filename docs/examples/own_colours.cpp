/// A scheme of the program's own.
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    list.letColorStyle(cCustom);
    list.letBorderColor(0x80A060);
    list.letColumnBackColor(0xD8E8D0);
    list.letColumnHoverColor(0xE8F4E0);
    list.letColumnDownColor(0xB8D0B0);
    list.letEmptyColumnFieldColor(0xD8E8D0);
    list.letValueColor(0x609040); // selected cells
    list.letRowSelected(2, true);
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
