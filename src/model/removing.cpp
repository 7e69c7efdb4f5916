/// Removing rows, and the entry for columns.
#include "model/list_view.h"
#include "platform/queue_watch.h"
#include "render/painting.h"

namespace lumtex {

void lmListView::RowsRemove(Variant& Index) {
    if (!records.hasRows())
        return;
    Procedure p = procedure(u"RowsRemove");
    // A place that cannot be understood counts as out of range, which is neither reported nor told.
    const bool outOfRange = p.condition(
        [&] { return Index.toDouble() < 1 || Index.toDouble() > records.upperBoundOfRows() + 1.0; }, true);
    if (!outOfRange) {
        Long row = 0;
        if (p.step([&] { row = Index.toLong(); })) {
            p.step([&] { writeBack(Index, row); });
            removeRow(row, p);
            CheckForRedraw();
        }
    }
    // Wanted: the scroll check comes after the repaint, and for a place out of range too.
    if (properties.AutoCheckScroll)
        CheckScroll();
}

/// `Index` counts from 1 and is in range.
void lmListView::removeRow(Long Index, Procedure& p) {
    for (std::size_t column = 0; column < records.columnSlots(); ++column) {
        const Long slot = static_cast<Long>(column);
        if (ItemChecked(Index, slot + 1))
            p.step([&] { --records.columnAt(slot).ItemsChecked; });
    }
    // A report above may have let host code end the list, which leaves none.
    const Long last = p.value<Long>([&] { return records.upperBoundOfRows(); });
    QueueWatch watch(runtime().queue());
    for (Long row = Index; row <= last; ++row) {
        // While nothing waits for the host, nobody sees that the others move at once.
        if (!watch.eventWaits() && records.RowsCount() == last + 1) {
            records.rows().remove(static_cast<std::size_t>(row) - 1);
            return;
        }
        if (!p.step([&] { records.recordAt(row - 1) = records.recordAt(row); }))
            watch.hostRan();
        // Wanted: the host gets its turn after each row, and sees the row behind the gap twice.
        yield(p, watch);
    }
    // Wanted: ListIndex, NewIndex and the top row keep their numbers.
    if (RowsCount() < 2)
        RowsClear();
    else
        records.rows().dropLast();
}

void lmListView::RowsSelectedRemove() {
    Procedure p = procedure(u"RowsSelectedRemove");
    const bool autoCheckScroll = properties.AutoCheckScroll;
    const bool autoRedraw = properties.AutoRedraw;
    properties.AutoCheckScroll = false;
    properties.AutoRedraw = false;
    painting->hold();
    Long row = 1;
    // Wanted: the first row is looked at before the count, so a list that never had rows reports its absence.
    do {
        if (RowSelected(row))
            RowsRemove(row);
        else
            ++row;
    } while (row <= RowsCount());
    properties.AutoCheckScroll = autoCheckScroll;
    properties.AutoRedraw = autoRedraw;
    painting->release();
    CheckScroll();
    Redraw();
}

void lmListView::ColumnsRemove(const Variant& /*Index*/) {
    if (!records.hasColumns())
        return;
    Procedure p = procedure(u"ColumnsRemove");
    // Wanted: every index is a wrong one once there are columns, so no column ever goes.
    if (properties.AutoCheckScroll)
        CheckScroll();
    CheckForRedraw();
}

} // namespace lumtex
