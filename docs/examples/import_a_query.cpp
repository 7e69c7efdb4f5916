/// The records of a query become rows.
#include "adapters/database/database_recordset.h"
#include "program.h"

#include <fstream>

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    std::ofstream(program.folder / "cities.db").close(); // a database without tables
    // [shown
    const std::string file = (program.folder / "cities.db").string();
    list.setRecordset(database::openRecordset(
        file, "SELECT 'Lisbon' AS city, 545000 AS people UNION ALL SELECT 'Oslo', 709000"));
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
