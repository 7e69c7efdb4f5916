#include "ordering/sort_at_once.h"

#include "ordering/number_rows.h"
#include "ordering/quick_sort.h"
#include "ordering/text_rows.h"

#include <algorithm>

namespace lumtex::ordering {

bool holdsMoreThanBlanks(const CompactText& text) {
    return text.visit([](auto units) {
        return std::any_of(units.begin(), units.end(), [](char16_t unit) { return unit != u' '; });
    });
}

namespace {

using Order = std::optional<std::vector<std::uint32_t>>;

/// The text of the cell, or null where the row is too short.
const CompactText* textOf(const RowRecord& row, std::size_t cell) {
    return cell < row.items.count() ? &row.items[cell].text() : nullptr;
}

/// Hands `take` the text of each row, null where a row is too short, until it answers False. Rows lie
/// anywhere in memory, so each is fetched some rows before its turn, and a text outside its cell a few rows
/// later.
/// `anyText` tells whether one of them holds more than blanks.
template <class Take>
bool forEachText(const RowArray& rows, std::size_t cell, bool& anyText, Take take) {
    constexpr std::size_t rowAhead = 24;
    constexpr std::size_t textAhead = 12;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows.prefetch(i + rowAhead, cell);
        if (i + textAhead < rows.size()) {
            if (const CompactText* const text = textOf(rows[i + textAhead], cell))
                text->prefetch();
        }
        const CompactText* const text = textOf(rows[i], cell);
        anyText = anyText || (text != nullptr && holdsMoreThanBlanks(*text));
        if (!take(text))
            return false;
    }
    return true;
}

enum class Reading : Byte { whole, reports, tooWide };

/// Sorts texts of such units; `order` is set where all were read.
template <class Unit, bool descending>
Reading orderOfUnits(const RowArray& rows, std::size_t cell, bool silent, Order& order) {
    TextRows<Unit, descending> keys(rows.size());
    Reading reading = Reading::whole;
    bool anyText = false;
    forEachText(rows, cell, anyText, [&](const CompactText* text) {
        if (text == nullptr && !silent)
            reading = Reading::reports;
        else if (!keys.add(text))
            reading = Reading::tooWide;
        return reading == Reading::whole;
    });
    if (reading == Reading::whole && !anyText) {
        order.emplace();
    } else if (reading == Reading::whole) {
        quickSort(keys, 0, static_cast<Long>(rows.size()) - 1);
        order = keys.order();
    }
    return reading;
}

template <bool descending>
Order orderOfTexts(const RowArray& rows, std::size_t cell, bool silent) {
    Order order;
    if (orderOfUnits<unsigned char, descending>(rows, cell, silent, order) == Reading::tooWide)
        orderOfUnits<char16_t, descending>(rows, cell, silent, order);
    return order;
}

template <bool descending>
Order orderOfNumbers(const RowArray& rows, std::size_t cell, cSortType type, bool silent) {
    NumberRows<descending> keys(rows.size(), type);
    NumberReader reader(type);
    bool anyText = false;
    const bool whole = forEachText(rows, cell, anyText, [&](const CompactText* text) {
        const Double key = text != nullptr ? reader.read(*text) : unreadable;
        keys.add(key);
        return key == key || silent;
    });
    if (!whole)
        return std::nullopt;
    if (!anyText)
        return Order(std::in_place);
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
