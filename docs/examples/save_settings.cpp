/// Settings go to a bag and into another list.
/// Prints: lines: 1, olive: 1
#include "platform/property_bag.h"
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    MemoryPropertyBag settings;
    list.letGridLines(true);
    list.letColorStyle(cXPOlive);
    list.UserControl_WriteProperties(settings);

    lmListView next(program.desktop, program.host, *program.events);
    next.UserControl_ReadProperties(settings); // in place of UserControl_InitProperties
    program.out << "lines: " << next.GridLines() << ", olive: " << (next.ColorStyle() == cXPOlive) << '\n';
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
