#include "content/content_header.h"

#include "values/variant.h"

#include <algorithm>

namespace lumtex::content {

namespace {

constexpr StringView versionText = u"275";

/// Bytes of a record whose texts are empty and whose pictures are none.
constexpr std::int64_t shortestTextRecord = 4;
constexpr std::int64_t shortestFullRecord = 56;

} // namespace

Integer SaveVersion() {
    return Variant(versionText).toInteger();
}

bool isPossible(const ContentHeader& header, std::int64_t remaining, Long listColumns) {
    if (header.rowCount <= 0)
        return true;
    const std::int64_t rows = header.rowCount;
    // A list without columns refuses each row by itself.
    const std::int64_t cells = rows * std::max({header.columnCount, listColumns, Long{1}});
    if (header.columnCount <= 0)
        return rows <= mostRowsWithoutRecords && cells <= mostCellsWithoutRecords;
    const std::int64_t size = header.hasItemProperties ? shortestFullRecord : shortestTextRecord;
    return cells <= mostMissingCells || rows * header.columnCount <= remaining / size;
}

} // namespace lumtex::content
