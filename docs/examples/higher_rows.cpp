/// Rows of one height, with the text at the top.
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    list.letRowsDynamic(false);
    list.letRowHeight(24 * 15); // twips
    list.letTextPosition(1, cTextPosTop);
    list.letTextPosition(2, cTextPosBottom); // the others keep cTextPosCenter
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
