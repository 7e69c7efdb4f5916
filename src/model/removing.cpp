/// Removing rows, and the entry for columns.
#include "model/list_view.h"
#include "platform/queue_watch.h"

namespace lumtex {

void lmListView::RowsRemove(Variant& Index) {
    if (!rowsAllocated_)
        return;
    Procedure p = procedure(u"RowsRemove");
    // A place that cannot be understood counts as out of range, which is neither reported nor told.
    const bool outOfRange = p.condition(
        [&] { return Index.toDouble() < 1 || Index.toDouble() > upperBoundOfRows() + 1.0; }, true);
    if (!outOfRange) {
        Long row = 0;
        if (p.step([&] { row = Index.toLong(); })) {
            p.step([&] { writeBack(Index, row); });
            removeRow(row, p);
            CheckForRedraw();
        }
    }
    // Wanted: the scroll check comes after the repaint, and for a place out of range too.
    if (properties_.AutoCheckScroll)
        CheckScroll();
}

/// `Index` counts from 1 and is in range.
void lmListView::removeRow(Long Index, Procedure& p) {
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        const Long slot = static_cast<Long>(column);
        if (ItemChecked(Index, slot + 1))
            p.step([&] { --columnAt(slot).ItemsChecked; });
    }
    const Long last = upperBoundOfRows();
    // While nothing waits for the host, nobody sees whether a record is copied or, much faster, moved; the
    // last one moved leaves an empty record, which goes below.
    QueueWatch watch(runtime().queue());
    RowRecord* const records = rows_.data();
    Long row = Index;
    for (; row <= last && !watch.eventWaits(); ++row)
        records[row - 1] = std::move(records[row]);
    for (; row <= last; ++row) {
        if (!p.step([&] { recordAt(row - 1) = recordAt(row); }))
            watch.hostRan();
        // Wanted: the host gets its turn after each row, and sees the row behind the gap twice.
        yield(p, watch);
    }
    // Wanted: ListIndex, NewIndex and the top row keep their numbers.
    if (RowsCount() < 2)
        RowsClear();
    else
        rows_.pop_back();
}

void lmListView::RowsSelectedRemove() {
    Procedure p = procedure(u"RowsSelectedRemove");
    const bool autoCheckScroll = properties_.AutoCheckScroll;
    const bool autoRedraw = properties_.AutoRedraw;
    properties_.AutoCheckScroll = false;
    properties_.AutoRedraw = false;
    paint_.paintBusy = true;
    Long row = 1;
    // Wanted: the first row is looked at before the count, so a list that never had rows reports its absence.
    do {
        if (RowSelected(row))
            RowsRemove(row);
        else
            ++row;
    } while (row <= RowsCount());
    properties_.AutoCheckScroll = autoCheckScroll;
    properties_.AutoRedraw = autoRedraw;
    paint_.paintBusy = false;
    CheckScroll();
    Redraw();
}

void lmListView::ColumnsRemove(const Variant& /*Index*/) {
    if (!columnsAllocated_)
        return;
    Procedure p = procedure(u"ColumnsRemove");
    // Wanted: every index is a wrong one once there are columns, so no column ever goes.
    if (properties_.AutoCheckScroll)
        CheckScroll();
    CheckForRedraw();
}

} // namespace lumtex
