/// Check marks of cells, and the counts that go with them.
#include "model/list_view_records.h"

namespace lumtex {

bool ListViewRecords::ItemChecked(const Variant& Row, const Variant& Column) {
    return itemGet<bool>(u"ItemChecked", Row, Column, [](const Cell& cell) { return cell.item().Checked(); });
}

void ListViewRecords::letItemChecked(const Variant& Row, const Variant& Column, bool checked) {
    Procedure p = procedure(u"ItemChecked");
    // A cell that cannot be read counts as unchanged, so that the count stays true.
    const bool unchanged =
        p.condition([&] { return records.cellAt(Row, Column).item().Checked() == checked; }, true);
    if (unchanged)
        return;
    p.step([&] { records.cellAt(Row, Column).item().letChecked(checked); });
    p.step([&] { records.columnAt(zeroBased(Column)).ItemsChecked += checked ? 1 : -1; });
    CheckForRedraw();
}

Long ListViewRecords::ItemsCheckedCount(Long Column) {
    Procedure p = procedure(u"ItemsCheckedCount");
    return p.value<Long>([&] {
        if (Column >= 1 && Column <= ColumnsCount())
            return records.columnAt(Column - 1).ItemsChecked;
        const Long last = records.upperBoundOfColumns();
        Long sum = 0;
        for (Long column = 0; column <= last; ++column)
            sum += records.columnAt(column).ItemsChecked;
        return sum;
    });
}

} // namespace lumtex
