/// Rows take turns in colour.
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    list.letRowColorFirst(0xFFFFFF); // 0xBBGGRR
    list.letRowColorSecond(0xF4EBE2);
    list.letAutoRowColor(true);
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
