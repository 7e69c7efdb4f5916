/// The first cell that a pattern matches.
/// Prints: row 2
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    const FindResults found = list.FindItem(u"nor*", cFindStart, cFindText, u"2,"); // column 2 alone
    if (found.FindSuccessful)
        list.letRowSelected(found.FindRow, true);
    program.out << "row " << found.FindRow << '\n';
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
