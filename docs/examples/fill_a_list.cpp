/// Columns first, then rows.
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    // [shown
    list.ColumnsAdd(u"City", nullptr, nullptr, nullptr, cColumnLeft, 2250); // twips: 15 a pixel
    list.ColumnsAdd(u"Country", nullptr, nullptr, nullptr, cColumnLeft, 2250);
    list.RowsAdd(-1, u",", u"Lisbon,Portugal"); // -1: behind the last row
    list.RowsAdd(-1, u",", u"Oslo,Norway");
    list.RowsAdd(0, u",", u"Quito,Ecuador");      // before the first: this place counts from 0
    list.letItemText(3, 2, u"Kingdom of Norway"); // rows and columns count from 1
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
