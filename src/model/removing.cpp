/// Removing rows, and the entry for columns.
#include "guards/failure_of.h"
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
        if (!p.step([&] { records.copyRow(row, row - 1); }))
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

/// Goes over the rows from `row` on, which counts from 1, and takes the selected ones away at once. Gives the
/// row from which on they must go one by one: where something waits for the host or would be reported, where
/// the last row goes, and behind a row that held something of the host's, which may run its code as the sweep
/// ends. Then others are likely to hold such things too, and `sweeps` turns False.
Long lmListView::sweepSelected(Long row, bool& sweeps) {
    if (!sweeps || row > RowsCount() || !records.hasColumns() || designMode())
        return row;
    std::vector<ColumnHeader*> headers;
    ignoringErrors([&] {
        for (std::size_t column = 0; column < records.columnSlots(); ++column)
            headers.push_back(&records.columnAt(static_cast<Long>(column)));
    });
    if (headers.size() != records.columnSlots())
        return row;
    using enum RowArray::Verdict;
    Procedure p = procedure(u"RowsRemove");
    QueueWatch watch(runtime().queue());
    const ReleaseBin& bin = ReleaseBin::ofThread();
    const std::size_t heldBefore = bin.waiting();
    auto left = static_cast<std::size_t>(RowsCount());
    const std::size_t next =
        records.rows().sweep(static_cast<std::size_t>(row) - 1, [&](const RowRecord& record) {
            if (bin.waiting() != heldBefore)
                return leave;
            if (!record.Selected)
                return stay;
            if (left == 1 || record.items.count() < headers.size() || watch.eventWaits())
                return leave;
            for (std::size_t column = 0; column < headers.size(); ++column)
                headers[column]->ItemsChecked -= record.items[column].Checked() ? 1 : 0;
            --left;
            return go;
        });
    sweeps = bin.waiting() == heldBefore;
    return static_cast<Long>(next) + 1;
}

void lmListView::RowsSelectedRemove() {
    Procedure p = procedure(u"RowsSelectedRemove");
    const bool autoCheckScroll = properties.AutoCheckScroll;
    const bool autoRedraw = properties.AutoRedraw;
    properties.AutoCheckScroll = false;
    properties.AutoRedraw = false;
    painting->hold();
    Long row = 1;
    bool sweeps = true;
    // Wanted: the first row is looked at before the count, so a list that never had rows reports its absence.
    do {
        row = sweepSelected(row, sweeps);
        if (row > 1 && row > RowsCount())
            break;
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
