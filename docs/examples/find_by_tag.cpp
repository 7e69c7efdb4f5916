/// A cell by what the program keeps with it.
/// Prints: Quito
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    list.letItemTag(3, 1, u"EC-17");
    const FindResults found = list.FindItem(u"<itemtag>EC-##", cFindStart);
    list.letRowSelected(found.FindRow, true);
    program.out << toUtf8(list.ItemText(found.FindRow, 1)) << '\n';
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
