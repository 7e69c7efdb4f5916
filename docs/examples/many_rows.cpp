/// Nothing is painted before all rows are there.
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    // [shown
    list.ColumnsAdd(u"Number", nullptr, nullptr, nullptr, cColumnLeft, 2250);
    list.letAutoRedraw(false);
    list.letAutoCheckScroll(false);
    for (int number = 1; number <= 10000; ++number)
        list.RowsAdd(-1, u",", fromUtf8(std::to_string(number)));
    list.letAutoCheckScroll(true); // decides on the scroll bars
    list.letAutoRedraw(true);      // paints
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
