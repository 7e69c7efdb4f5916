/// A separator that no text holds.
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    // [shown
    list.ColumnsAdd(u"Name", nullptr, nullptr, nullptr, cColumnLeft, 3000);
    list.ColumnsAdd(u"Born", nullptr, nullptr, nullptr, cColumnLeft, 1500);
    list.RowsAdd(-1, u"|", u"Curie, Marie|1867");
    list.RowsAdd(-1, u"|", u"Noether, Emmy|1882");
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
