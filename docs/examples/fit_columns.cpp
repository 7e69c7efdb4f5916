/// Columns as wide as what was painted in them.
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    list.AutoColumnSize();        // all columns
    list.letColumnWidth(2, 3000); // and one by hand, in twips
    list.CheckScroll();
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
