#include "ordering/sort_at_once.h"

#include "ordering/number_rows.h"
#include "ordering/shared_sort.h"
#include "ordering/text_rows.h"

#include <algorithm>
#include <array>

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

/// Whether everything was read, or what stands against sorting at once.
enum class Reading : Byte { whole, tooWide, reports };

struct PieceRead {
    Reading reading = Reading::whole;
    bool anyText = false; ///< one of the texts holds more than blanks
};

/// Hands `take` the text of each row, null where a row is too short, until it answers something else than
/// `whole`. Rows lie anywhere in memory, so each is fetched some rows before its turn, and a text outside its
/// cell a few rows later.
template <class Take>
PieceRead readPiece(const RowArray& rows, Piece piece, std::size_t cell, Take take) {
    constexpr std::size_t rowAhead = 24;
    constexpr std::size_t textAhead = 12;
    PieceRead read;
    for (std::size_t i = piece.first; i < piece.end && read.reading == Reading::whole; ++i) {
        rows.prefetch(i + rowAhead, cell);
        if (i + textAhead < rows.size()) {
            if (const CompactText* const text = textOf(rows[i + textAhead], cell))
                text->prefetch();
        }
        const CompactText* const text = textOf(rows[i], cell);
        read.anyText = read.anyText || (text != nullptr && holdsMoreThanBlanks(*text));
        read.reading = take(text);
    }
    return read;
}

PieceRead joined(const std::array<PieceRead, mostPieces>& pieces) {
    PieceRead all;
    for (const PieceRead& piece : pieces) {
        all.reading = std::max(all.reading, piece.reading);
        all.anyText = all.anyText || piece.anyText;
    }
    return all;
}

/// Sorts texts of such units; `order` is set where all were read.
template <class Unit, bool descending>
Reading orderOfUnits(const RowArray& rows, std::size_t cell, bool silent, Hands hands, Order& order) {
    TextKeys<Unit> keys(rows.size());
    std::array<PieceRead, mostPieces> pieces;
    forEachPiece(rows.size(), hands, [&](Piece piece) {
        TextReader<Unit> reader(keys, piece);
        pieces[piece.number] = readPiece(rows, piece, cell, [&](const CompactText* text) {
            if (text == nullptr && !silent)
                return Reading::reports;
            return reader.add(text) ? Reading::whole : Reading::tooWide;
        });
    });
    const PieceRead read = joined(pieces);
    if (read.reading == Reading::whole && !read.anyText) {
        order.emplace();
    } else if (read.reading == Reading::whole) {
        TextRows<Unit, descending> sorted(keys);
        quickSortAtHand(sorted, keys.count(), hands);
        order = keys.order();
    }
    return read.reading;
}

template <bool descending>
Order orderOfTexts(const RowArray& rows, std::size_t cell, bool silent, Hands hands) {
    Order order;
    if (orderOfUnits<unsigned char, descending>(rows, cell, silent, hands, order) == Reading::tooWide)
        orderOfUnits<char16_t, descending>(rows, cell, silent, hands, order);
    return order;
}

template <bool descending>
Order orderOfNumbers(const RowArray& rows, std::size_t cell, cSortType type, bool silent, Hands hands) {
    NumberKeys keys(rows.size());
    std::array<PieceRead, mostPieces> pieces;
    std::array<bool, mostPieces> readsBack{true, true};
    const Locale& locale = currentLocale();
    // A column names the same days again and again, and each of two readers would have to learn them.
    const Hands readers = type == cSortDate ? Hands::one : hands;
    forEachPiece(rows.size(), readers, [&](Piece piece) {
        NumberReader reader(type, piece.end - piece.first, locale);
        NumberKeys::Filler filler(keys, piece);
        pieces[piece.number] = readPiece(rows, piece, cell, [&](const CompactText* text) {
            const Double key = text != nullptr ? reader.read(*text) : unreadable;
            filler.add(key);
            return key == key || silent ? Reading::whole : Reading::reports;
        });
        readsBack[piece.number] = reader.readsBackItsKeys();
    });
    const PieceRead read = joined(pieces);
    if (read.reading != Reading::whole)
        return std::nullopt;
    if (!read.anyText)
        return Order(std::in_place);
    NumberRows<descending> sorted(keys, type, readsBack[0] && readsBack[1]);
    quickSortAtHand(sorted, keys.count(), hands);
    if (sorted.wouldReport() && !silent)
        return std::nullopt;
    return keys.order();
}

} // namespace

Order orderAtOnce(
    const RowArray& rows, std::size_t cell, cSortType type, cSortMode order, bool silent, Hands hands) {
    const bool descending = order == cDescending;
    if (type == cSortText)
        return descending ? orderOfTexts<true>(rows, cell, silent, hands)
                          : orderOfTexts<false>(rows, cell, silent, hands);
    return descending ? orderOfNumbers<true>(rows, cell, type, silent, hands)
                      : orderOfNumbers<false>(rows, cell, type, silent, hands);
}

} // namespace lumtex::ordering
