/// Reading and writing one field of one row.
#include "model/list_view.h"
#include "scroll/scroller.h"

namespace lumtex {

template <class T>
T ListViewRecords::rowGet(StringView name, const Variant& Index, T RowRecord::*field) {
    Procedure p = procedure(name);
    return p.value<T>([&] { return records.rowAt(Index).*field; });
}

template <class T>
void ListViewRecords::rowLet(StringView name, const Variant& Index, T RowRecord::*field, T value) {
    Procedure p = procedure(name);
    p.step([&] { records.rowAt(Index).*field = value; });
    CheckForRedraw();
}

bool ListViewRecords::RowEnabled(const Variant& Index) {
    return rowGet(u"RowEnabled", Index, &RowRecord::Enabled);
}

void ListViewRecords::letRowEnabled(const Variant& Index, bool enabled) {
    Procedure p = procedure(u"RowEnabled");
    p.step([&] { records.rowAt(Index).Enabled = enabled; });
    for (Long column = 1; column <= ColumnsCount(); ++column)
        letItemEnabled(Index, column, enabled);
    CheckForRedraw();
}

bool ListViewRecords::RowChecked(const Variant& Index) {
    return rowGet(u"RowChecked", Index, &RowRecord::Checked);
}

void ListViewRecords::letRowChecked(const Variant& Index, bool checked) {
    rowLet(u"RowChecked", Index, &RowRecord::Checked, checked);
}

cTextPosition ListViewRecords::TextPosition(const Variant& Index) {
    return rowGet(u"TextPosition", Index, &RowRecord::TextPosition);
}

void ListViewRecords::letTextPosition(const Variant& Index, cTextPosition position) {
    rowLet(u"TextPosition", Index, &RowRecord::TextPosition, position);
}

bool lmListView::RowSelected(const Variant& Index) {
    return rowGet(u"RowSelected", Index, &RowRecord::Selected);
}

void lmListView::letRowSelected(const Variant& Index, bool selected) {
    Procedure p = procedure(u"RowSelected");
    if (!properties.MultiSelect) {
        p.step([&] {
            const Long last = records.upperBoundOfRows();
            for (Long row = 0; row <= last; ++row)
                records.recordAt(row).Selected = false;
        });
    }
    p.step([&] { records.rowAt(Index).Selected = selected; });
    if (selected) {
        const Long top = scroller->vertical().Value();
        const Long visible = scroller->VisibleItems();
        const bool outOfView = p.condition(
            [&] {
                const Double row = Index.toDouble();
                const Double first = top;
                return row >= first + visible || row < first + 1;
            },
            false);
        if (outOfView)
            p.step([&] { letTopIndex(zeroBased(Index)); });
    }
    CheckForRedraw();
}

Long ListViewRecords::RowSelectedCount() {
    Procedure p = procedure(u"RowSelectedCount");
    return p.value<Long>([&] {
        const Long last = records.upperBoundOfRows();
        Long count = 0;
        for (Long row = 0; row <= last; ++row)
            count += records.recordAt(row).Selected ? 1 : 0;
        return count;
    });
}

} // namespace lumtex
