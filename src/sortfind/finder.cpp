#include "sortfind/finder.h"

#include "model/list_view.h"
#include "values/case_mapping.h"
#include "values/runtime_error.h"

#include <algorithm>

namespace lumtex {

namespace {

constexpr StringView tagMarker = u"<itemtag>";
constexpr StringView everything = u"*";
/// So many rows before its turn a row is fetched, if the search goes by all of them.
constexpr std::size_t rowsAhead = 12;

bool startsWithTagMarker(StringView text) {
    return text.size() >= tagMarker.size() &&
           std::equal(tagMarker.begin(), tagMarker.end(), text.begin(), [](char16_t marker, char16_t unit) {
               return marker == lowerCase(unit);
           });
}

} // namespace

FindResults Finder::FindItem(
    StringView sFind, cFindBegin cBegin, cFindCompare cCompare, String& sColumns, String& sRows) {
    Procedure p = procedure(u"FindItem");
    if (sColumns.empty())
        p.step([&] { sColumns = everything; });
    if (sRows.empty())
        p.step([&] { sRows = everything; });
    // Wanted: what was read once is kept while the text stays the same, whatever became of the list.
    if (!readNotation(sColumns, records_.ColumnsCount(), state_.findColumnSpec, state_.findColumnList, p) ||
        !readNotation(sRows, records_.RowsCount(), state_.findRowSpec, state_.findRowList, p))
        return {};

    if (cBegin == cFindStart) {
        state_.findRowPos = 0;
        state_.findColumnPos = 0;
    }
    if (state_.findRowPos > records_.RowsCount() - 1)
        state_.findRowPos = 0;
    if (state_.findColumnPos > records_.ColumnsCount() - 1)
        state_.findColumnPos = 0;

    FindResults hit;
    p.step([&] {
        const bool inTags = startsWithTagMarker(sFind);
        const ordering::FindMatcher matcher(
            core_.runtime(), inTags ? sFind.substr(tagMarker.size()) : sFind, cCompare);
        hit = inTags ? scanTags(matcher, p) : scanTexts(matcher);
    });
    return hit;
}

/// False where the search ends at once.
bool Finder::readNotation(
    StringView text, Long limit, String& cachedText, ordering::NumberList& cachedList, Procedure& p) {
    if (text == cachedText)
        return true;
    ordering::FindNotation notation;
    if (!p.step([&] { notation = ordering::readFindNotation(text, limit); }))
        return false;
    if (!notation.valid)
        return false;
    p.step([&] { cachedText = text; });
    cachedList = std::move(notation.numbers);
    if (notation.empty)
        p.step([] { throw RuntimeError(ErrorNumber::invalidProcedureCall); });
    return true;
}

/// Goes through the cells of the lists from the stored place on, until `test` says that one is a hit. A cell
/// that is not there is read through `report`, by whose name the failure goes, and ends the search. What
/// `rowRefused` says of a row's cells, without host code, spares them a test of each.
template <class RowRefused, class Test, class Report>
FindResults Finder::scan(RowRefused rowRefused, Test test, Report report) {
    const auto rowEnd = static_cast<std::int64_t>(state_.findRowList.size());
    const auto columnEnd = static_cast<std::int64_t>(state_.findColumnList.size());
    if (state_.findColumnPos >= columnEnd)
        return {};
    const auto lastColumn = static_cast<std::size_t>(std::max(records_.ColumnsCount() - 1, Long{0}));
    for (std::int64_t r = state_.findRowPos; r < rowEnd; ++r) {
        records_.rows().prefetch(static_cast<std::size_t>(r) + rowsAhead, lastColumn);
        const Items* const inRow = records_.cellsOf(state_.findRowList.at(static_cast<std::size_t>(r)), 1);
        if (inRow != nullptr && rowRefused(*inRow))
            continue;
        // Wanted: each row starts at the stored column, so that a continued search leaves out those before
        // it.
        for (std::int64_t c = state_.findColumnPos; c < columnEnd; ++c) {
            const Long row = state_.findRowList.at(static_cast<std::size_t>(r));
            const Long column = state_.findColumnList.at(static_cast<std::size_t>(c));
            Items* const cells = records_.cellsOf(row, column);
            if (cells == nullptr) {
                report(row, column);
                return {};
            }
            if (test(*cells, static_cast<std::size_t>(column) - 1))
                return noteHit(static_cast<Long>(r), static_cast<Long>(c));
        }
    }
    // Wanted: the place stays, and no search begins again at the top by itself.
    return {};
}

/// Whether each cell that is searched in the row is there and no hit.
bool Finder::textsRefused(const ordering::FindMatcher& matcher, const Items& cells) {
    const std::size_t count = cells.count();
    const auto columnEnd = static_cast<std::int64_t>(state_.findColumnList.size());
    ordering::ByteFilter::Marks marks;
    for (std::int64_t c = state_.findColumnPos; c < columnEnd; ++c) {
        const Long column = state_.findColumnList.at(static_cast<std::size_t>(c));
        if (column < 1 || static_cast<std::size_t>(column) > count)
            return false;
        marks |= matcher.marksOf(cells[static_cast<std::size_t>(column) - 1].text());
    }
    return !marks.any();
}

/// `r` and `c` are positions in the lists, from 0.
FindResults Finder::noteHit(Long r, Long c) {
    // Wanted: the last column is told by its place in the list, and the stored row goes up by one from
    // where the search began, not from the hit.
    if (c == records_.ColumnsCount() - 1) {
        state_.findRowPos += 1;
        state_.findColumnPos = 0;
    } else {
        state_.findRowPos = r;
        state_.findColumnPos = c + 1;
    }
    return {true, r + 1, c + 1};
}

FindResults Finder::scanTexts(const ordering::FindMatcher& matcher) {
    return scan([&](const Items& items) { return textsRefused(matcher, items); },
                [&](const Items& items, std::size_t cell) { return matcher.matches(items[cell].text()); },
                [&](Long row, Long column) { list_.ItemText(row, column); });
}

/// A tag without a text form is reported and no hit.
FindResults Finder::scanTags(const ordering::FindMatcher& matcher, Procedure& p) {
    return scan([](const Items& /*items*/) { return false; },
                [&](const Items& items, std::size_t cell) {
                    const CellExtras* extras = items.extras(cell);
                    String tag;
                    const bool hasText =
                        extras == nullptr || p.step([&] { tag = extras->Tag.get().toText(); });
                    return hasText && matcher.matches(tag);
                },
                [&](Long row, Long column) { list_.ItemTag(row, column); });
}

} // namespace lumtex
