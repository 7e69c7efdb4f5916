#include "persistence/content_header.h"

#include "platform/variant.h"

namespace lumtex {

namespace {

constexpr StringView versionText = u"275";

/// Bytes of a record whose texts are empty and whose pictures are none.
constexpr std::int64_t shortestTextRecord = 4;
constexpr std::int64_t shortestFullRecord = 56;

} // namespace

Integer SaveVersion() {
    return Variant(versionText).toInteger();
}

bool isPossible(const ContentHeader& header, std::int64_t remaining) {
    if (header.rowCount <= 0)
        return true;
    if (header.columnCount <= 0)
        return header.rowCount <= mostRowsWithoutCells;
    const std::int64_t records = std::int64_t{header.rowCount} * header.columnCount;
    const std::int64_t size = header.hasItemProperties ? shortestFullRecord : shortestTextRecord;
    return records - mostMissingRecords <= remaining / size;
}

} // namespace lumtex
