#include "ordering/sort_at_once.h"

#include "ordering/number_rows.h"
#include "ordering/quick_sort.h"
#include "ordering/text_rows.h"

namespace lumtex::ordering {

namespace {

using Order = std::optional<std::vector<std::uint32_t>>;

/// The text of the cell, or null where the row is too short.
const CompactText* textOf(const RowRecord& row, std::size_t cell) {
    return cell < row.items.count() ? &row.items[cell].text() : nullptr;
}

template <class Unit, bool descending>
Order orderOfTexts(const RowArray& rows, std::size_t cell, std::size_t units) {
    TextRows<Unit, descending> keys(rows.size(), units);
    for (const RowRecord& row : rows)
        keys.add(textOf(row, cell));
    quickSort(keys, 0, static_cast<Long>(rows.size()) - 1);
    return keys.order();
}

template <bool descending>
Order orderOfTexts(const RowArray& rows, std::size_t cell, bool silent) {
    std::size_t units = 0;
    bool wide = false;
    for (const RowRecord& row : rows) {
        const CompactText* text = textOf(row, cell);
        if (text == nullptr && !silent)
            return std::nullopt;
        if (text != nullptr) {
            units += text->size();
            wide = wide || text->isWide();
        }
    }
    return wide ? orderOfTexts<char16_t, descending>(rows, cell, units)
                : orderOfTexts<unsigned char, descending>(rows, cell, units);
}

template <bool descending>
Order orderOfNumbers(const RowArray& rows, std::size_t cell, cSortType type, bool silent) {
    NumberRows<descending> keys(rows.size(), type);
    NumberReader reader(type);
    for (const RowRecord& row : rows) {
        const CompactText* text = textOf(row, cell);
        const Double key = text != nullptr ? reader.read(*text) : unreadable;
        if (key != key && !silent)
            return std::nullopt;
        keys.add(key);
    }
    keys.letKeysAreTheirPivots(reader.readsBackItsKeys());
    quickSort(keys, 0, static_cast<Long>(rows.size()) - 1);
    if (keys.wouldReport() && !silent)
        return std::nullopt;
    return keys.order();
}

} // namespace

Order orderAtOnce(const RowArray& rows, std::size_t cell, cSortType type, cSortMode order, bool silent) {
    const bool descending = order == cDescending;
    if (type == cSortText)
        return descending ? orderOfTexts<true>(rows, cell, silent) : orderOfTexts<false>(rows, cell, silent);
    return descending ? orderOfNumbers<true>(rows, cell, type, silent)
                      : orderOfNumbers<false>(rows, cell, type, silent);
}

} // namespace lumtex::ordering
