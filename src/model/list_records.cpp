#include "model/list_records.h"

#include "values/runtime_error.h"

namespace lumtex {

Long ListRecords::upperBoundOfRows() const {
    if (rows_.empty())
        throw RuntimeError(ErrorNumber::subscriptOutOfRange);
    return static_cast<Long>(rows_.size()) - 1;
}

Long ListRecords::upperBoundOfColumns() const {
    if (columns_.empty())
        throw RuntimeError(ErrorNumber::subscriptOutOfRange);
    return static_cast<Long>(columns_.size()) - 1;
}

std::size_t ListRecords::existing(Long position) const {
    if (position < 0 || static_cast<std::size_t>(position) >= rows_.size())
        throw RuntimeError(ErrorNumber::subscriptOutOfRange);
    return static_cast<std::size_t>(position);
}

RowRecord& ListRecords::recordAt(Long position) {
    return rows_[existing(position)];
}

void ListRecords::swapRows(Long one, Long other) {
    const std::size_t first = existing(one);
    rows_.swap(first, existing(other));
}

void ListRecords::copyRow(Long from, Long to) {
    const std::size_t source = existing(from);
    rows_.copy(source, existing(to));
}

RowRecord& ListRecords::rowAt(const Variant& Index) {
    return recordAt(zeroBased(Index));
}

ColumnHeader& ListRecords::columnAt(Long position) {
    if (position < 0 || static_cast<std::size_t>(position) >= columns_.size())
        throw RuntimeError(ErrorNumber::subscriptOutOfRange);
    std::unique_ptr<ColumnHeader>& slot = columns_[static_cast<std::size_t>(position)];
    if (!slot)
        slot = std::make_unique<ColumnHeader>();
    return *slot;
}

ListRecords::Cell ListRecords::cellAt(const Variant& Row, const Variant& Column) {
    Items& items = rowAt(Row).items;
    // Wanted: a text is a key, and no cell has a key, so that a numeric text fails too.
    if (Column.isString())
        throw RuntimeError(ErrorNumber::invalidProcedureCall);
    const Long number = Column.toLong();
    if (number < 1 || static_cast<std::size_t>(number) > items.count())
        throw RuntimeError(ErrorNumber::subscriptOutOfRange);
    return {items, static_cast<std::size_t>(number) - 1};
}

void ListRecords::growRows() {
    if (!rowsAllocated_)
        rows_.clear();
    rows_.append();
    rowsAllocated_ = true;
}

Long ListRecords::growColumns() {
    if (!columnsAllocated_)
        columns_.clear();
    columns_.emplace_back();
    columnsAllocated_ = true;
    return static_cast<Long>(columns_.size()) - 1;
}

void ListRecords::clearRows() {
    rows_.clear();
    rows_.append();
    rowsAllocated_ = false;
}

void ListRecords::clearColumns() {
    columns_.clear();
    columns_.emplace_back();
    columnsAllocated_ = false;
}

void ListRecords::release() {
    rowsAllocated_ = false;
    columnsAllocated_ = false;
    rows_.release();
    std::vector<std::unique_ptr<ColumnHeader>>().swap(columns_);
}

} // namespace lumtex
