/// Content goes to a file and comes back.
/// Prints: rows: 5
#include "program.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    list.letItemFontBold(1, 1, true);
    // [shown
    const String file = fromUtf8((program.folder / "cities.list").string());
    list.ContentSave(file, true); // with looks, tags and icons
    list.RowsClear();
    list.ContentInput(file, true); // the columns have stayed
    program.out << "rows: " << list.RowsCount() << '\n';
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
