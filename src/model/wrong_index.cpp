/// The two public tests of an index, and the bounds they ask for.
#include "model/list_view.h"
#include "values/runtime_error.h"

namespace lumtex {

/// Throws 9 while the array does not exist.
Long ListViewRecords::upperBoundOfRows() const {
    if (rows_.empty())
        throw RuntimeError(subscriptOutOfRange);
    return static_cast<Long>(rows_.size()) - 1;
}

Long ListViewRecords::upperBoundOfColumns() const {
    if (columns_.empty())
        throw RuntimeError(subscriptOutOfRange);
    return static_cast<Long>(columns_.size()) - 1;
}

// Wanted: every index is wrong as soon as the array exists, and without one the test itself fails.
bool lmListView::WrongIndex(const Variant& Index) {
    Procedure p = procedure(u"WrongIndex");
    return p.value<bool>([&] {
        if (!Index.isNumeric() || ArrDim(Long{0}))
            return true;
        const Long last = upperBoundOfRows();
        return Index.toDouble() < 0 || Index.toDouble() > last;
    });
}

// Wanted: the same for columns.
bool lmListView::WrongColumnIndex(const Variant& Index) {
    Procedure p = procedure(u"WrongColumnIndex");
    return p.value<bool>([&] {
        if (!Index.isNumeric() || ArrDim(Long{1}))
            return true;
        const Long last = upperBoundOfColumns();
        return Index.toDouble() < 1 || Index.toDouble() > last + 1.0;
    });
}

} // namespace lumtex
