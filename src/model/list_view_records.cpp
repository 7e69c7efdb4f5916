/// The look-ups that every accessor stands on.
#include "model/list_view_records.h"

#include "values/runtime_error.h"

namespace lumtex {

bool ListViewRecords::ArrDim(const Variant& which) const {
    Procedure p = procedure(u"ArrDim");
    return p.value<bool>([&] {
        const Double array = which.toDouble();
        if (array == 0)
            return !rows_.empty();
        if (array == 1)
            return !columns_.empty();
        return false;
    });
}

/// Makes the column where its slot holds none. Throws 9 where there is no such slot.
ColumnHeader& ListViewRecords::columnAt(Long index) {
    if (index < 0 || static_cast<std::size_t>(index) >= columns_.size())
        throw RuntimeError(subscriptOutOfRange);
    std::unique_ptr<ColumnHeader>& slot = columns_[static_cast<std::size_t>(index)];
    if (!slot)
        slot = std::make_unique<ColumnHeader>();
    return *slot;
}

/// `position` counts from 0. Throws 9 where there is no such element.
RowRecord& ListViewRecords::recordAt(Long position) {
    if (position < 0 || static_cast<std::size_t>(position) >= rows_.size())
        throw RuntimeError(subscriptOutOfRange);
    return rows_[static_cast<std::size_t>(position)];
}

RowRecord& ListViewRecords::rowAt(const Variant& Index) {
    return recordAt(zeroBased(Index));
}

ListViewRecords::Cell ListViewRecords::cellAt(const Variant& Row, const Variant& Column) {
    Items& items = rowAt(Row).items;
    // Wanted: a text is a key, and no cell has a key, so that a numeric text fails too.
    if (Column.isString())
        throw RuntimeError(invalidProcedureCall);
    const Long number = Column.toLong();
    if (number < 1 || static_cast<std::size_t>(number) > items.count())
        throw RuntimeError(subscriptOutOfRange);
    return {items, static_cast<std::size_t>(number) - 1};
}

} // namespace lumtex
