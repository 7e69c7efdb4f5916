/// Filling the list from a recordset, once.
#include "content/recordset_members.h"
#include "interaction/shared_count.h"
#include "model/list_view.h"

namespace lumtex {

namespace {

/// A cursor that refuses to move twice in a row stands still for good; its record would come again for ever.
constexpr int mostRefusals = 2;

/// The fields of the record under the cursor, each with a comma behind it but the last.
void joinFields(RecordSource& records, String& line, Procedure& p, Long& counter) {
    line.clear();
    const Long count = p.value<Long>([&] { return records.fieldCount(); });
    countShared(counter, 0, count - 1, [&] {
        // A field that fails leaves its comma out too, so that those behind it move to the left.
        p.step([&] {
            records.appendField(counter, line);
            // Wanted: a value that holds a comma spreads over the next columns; nothing is escaped.
            line += u',';
        });
        return true;
    });
    p.step([&] {
        if (line.empty())
            throw RuntimeError(ErrorNumber::invalidProcedureCall);
        line.pop_back();
    });
}

} // namespace

void lmListView::setRecordset(ObjectRef recordset) {
    Procedure p = procedure(u"Recordset");
    p.step([&] { recordset_ = recordset; });
    content::RecordsetMembers members(std::move(recordset));
    // A count that cannot be read is not above 0.
    if (!p.condition([&] { return members.hasRecords(); }, false))
        return;

    const bool redraws = AutoRedraw();
    const bool checksScroll = AutoCheckScroll();
    letAutoRedraw(false);
    letAutoCheckScroll(false);
    RowsClear();
    ColumnsClear();

    const Long columns = p.value<Long>([&] { return members.fieldCount(); });
    // By the counter that all long loops share.
    countShared(counters.scanIndex, 0, columns - 1, [&] {
        p.step([&] { ColumnsAdd(members.fieldName(counters.scanIndex)); });
        return true;
    });

    p.step([&] { members.moveFirst(); });
    RecordSource& source = members.records();
    String line;
    int refusals = 0;
    // Wanted: the end is asked for after the move alone, so that the first record is always taken.
    do {
        joinFields(source, line, p, counters.scanIndex);
        RowsAdd(Long{-1}, u",", line);
        refusals = p.step([&] { source.moveNext(); }) ? 0 : refusals + 1;
        // An end that cannot be asked for has come.
    } while (!p.condition([&] { return source.atEnd(); }, true) && refusals < mostRefusals);

    letAutoRedraw(redraws);
    letAutoCheckScroll(checksScroll);
    Redraw();
    CheckScroll();
}

} // namespace lumtex
