/// The two public tests of an index, and the one of an array that they ask for.
#include "model/list_view.h"

namespace lumtex {

bool ListViewRecords::ArrDim(const Variant& which) const {
    Procedure p = procedure(u"ArrDim");
    return p.value<bool>([&] {
        const Double array = which.toDouble();
        if (array == 0)
            return records.rowsExist();
        if (array == 1)
            return records.columnsExist();
        return false;
    });
}

// Wanted: every index is wrong as soon as the array exists, and without one the test itself fails.
bool lmListView::WrongIndex(const Variant& Index) {
    Procedure p = procedure(u"WrongIndex");
    return p.value<bool>([&] {
        if (!Index.isNumeric() || ArrDim(Long{0}))
            return true;
        const Long last = records.upperBoundOfRows();
        return Index.toDouble() < 0 || Index.toDouble() > last;
    });
}

// Wanted: the same for columns.
bool lmListView::WrongColumnIndex(const Variant& Index) {
    Procedure p = procedure(u"WrongColumnIndex");
    return p.value<bool>([&] {
        if (!Index.isNumeric() || ArrDim(Long{1}))
            return true;
        const Long last = records.upperBoundOfColumns();
        return Index.toDouble() < 1 || Index.toDouble() > last + 1.0;
    });
}

} // namespace lumtex
