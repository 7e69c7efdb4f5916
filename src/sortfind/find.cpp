/// Searching cells by a pattern.
#include "model/list_view.h"
#include "ordering/find_matcher.h"
#include "values/case_mapping.h"
#include "values/runtime_error.h"

#include <algorithm>

namespace lumtex {

namespace {

constexpr StringView tagMarker = u"<itemtag>";
constexpr StringView everything = u"*";

bool startsWithTagMarker(StringView text) {
    return text.size() >= tagMarker.size() &&
           std::equal(tagMarker.begin(), tagMarker.end(), text.begin(), [](char16_t marker, char16_t unit) {
               return marker == lowerCase(unit);
           });
}

} // namespace

/// The steps of one call of `FindItem`.
class CellSearch {
  public:
    CellSearch(lmListView& list, Procedure& procedure)
        : list_(list), state_(list.find_), procedure_(procedure) {}

    bool readNotation(StringView text, Long limit, String& cachedText, NumberList& cachedList);
    FindResults scanTexts(const FindMatcher& matcher);
    FindResults scanTags(const FindMatcher& matcher);

  private:
    template <class Test, class Report>
    FindResults scan(Test test, Report report);
    FindResults noteHit(Long r, Long c);

    lmListView& list_;
    FindState& state_;
    Procedure& procedure_;
};

FindResults lmListView::FindItem(
    StringView sFind, cFindBegin cBegin, cFindCompare cCompare, StringView sColumns, StringView sRows) {
    Procedure p = procedure(u"FindItem");
    return p.value<FindResults>([&] {
        String columns(sColumns);
        String rows(sRows);
        return FindItem(sFind, cBegin, cCompare, columns, rows);
    });
}

FindResults lmListView::FindItem(
    StringView sFind, cFindBegin cBegin, cFindCompare cCompare, String& sColumns, String& sRows) {
    Procedure p = procedure(u"FindItem");
    if (sColumns.empty())
        p.step([&] { sColumns = everything; });
    if (sRows.empty())
        p.step([&] { sRows = everything; });
    // Wanted: what was read once is kept while the text stays the same, whatever became of the list.
    CellSearch search(*this, p);
    if (!search.readNotation(sColumns, ColumnsCount(), find_.findColumnSpec, find_.findColumnList) ||
        !search.readNotation(sRows, RowsCount(), find_.findRowSpec, find_.findRowList))
        return {};

    if (cBegin == cFindStart) {
        find_.findRowPos = 0;
        find_.findColumnPos = 0;
    }
    if (find_.findRowPos > RowsCount() - 1)
        find_.findRowPos = 0;
    if (find_.findColumnPos > ColumnsCount() - 1)
        find_.findColumnPos = 0;

    FindResults hit;
    p.step([&] {
        const bool inTags = startsWithTagMarker(sFind);
        const FindMatcher matcher(runtime(), inTags ? sFind.substr(tagMarker.size()) : sFind, cCompare);
        hit = inTags ? search.scanTags(matcher) : search.scanTexts(matcher);
    });
    return hit;
}

/// False where the search ends at once.
bool CellSearch::readNotation(StringView text, Long limit, String& cachedText, NumberList& cachedList) {
    if (text == cachedText)
        return true;
    FindNotation notation;
    if (!procedure_.step([&] { notation = readFindNotation(text, limit); }))
        return false;
    if (!notation.valid)
        return false;
    procedure_.step([&] { cachedText = text; });
    cachedList = std::move(notation.numbers);
    if (notation.empty)
        procedure_.step([] { throw RuntimeError(invalidProcedureCall); });
    return true;
}

/// Goes through the cells of the lists from the stored place on, until `test` says that one is a hit. A cell
/// that is not there is read through `report`, by whose name the failure goes, and ends the search.
template <class Test, class Report>
FindResults CellSearch::scan(Test test, Report report) {
    const auto rowEnd = static_cast<std::int64_t>(state_.findRowList.size());
    const auto columnEnd = static_cast<std::int64_t>(state_.findColumnList.size());
    if (state_.findColumnPos >= columnEnd)
        return {};
    for (std::int64_t r = state_.findRowPos; r < rowEnd; ++r) {
        // Wanted: each row starts at the stored column, so that a continued search leaves out those before
        // it.
        for (std::int64_t c = state_.findColumnPos; c < columnEnd; ++c) {
            const Long row = state_.findRowList.at(static_cast<std::size_t>(r));
            const Long column = state_.findColumnList.at(static_cast<std::size_t>(c));
            const bool there = row >= 1 && static_cast<std::size_t>(row) <= list_.rows_.size() &&
                               column >= 1 &&
                               static_cast<std::size_t>(column) <=
                                   list_.rows_[static_cast<std::size_t>(row) - 1].items.count();
            if (!there) {
                report(row, column);
                return {};
            }
            if (test(list_.rows_[static_cast<std::size_t>(row) - 1].items,
                     static_cast<std::size_t>(column) - 1))
                return noteHit(static_cast<Long>(r), static_cast<Long>(c));
        }
    }
    // Wanted: the place stays, and no search begins again at the top by itself.
    return {};
}

/// `r` and `c` are positions in the lists, from 0.
FindResults CellSearch::noteHit(Long r, Long c) {
    // Wanted: the last column is told by its place in the list, and the stored row goes up by one from
    // where the search began, not from the hit.
    if (c == list_.ColumnsCount() - 1) {
        state_.findRowPos += 1;
        state_.findColumnPos = 0;
    } else {
        state_.findRowPos = r;
        state_.findColumnPos = c + 1;
    }
    return {true, r + 1, c + 1};
}

FindResults CellSearch::scanTexts(const FindMatcher& matcher) {
    return scan([&](const Items& items, std::size_t cell) { return matcher.matches(items[cell].text()); },
                [&](Long row, Long column) { list_.ItemText(row, column); });
}

/// A tag without a text form is reported and no hit.
FindResults CellSearch::scanTags(const FindMatcher& matcher) {
    return scan(
        [&](const Items& items, std::size_t cell) {
            const CellExtras* extras = items.extras(cell);
            String tag;
            const bool hasText =
                extras == nullptr || procedure_.step([&] { tag = extras->Tag.get().toText(); });
            return hasText && matcher.matches(tag);
        },
        [&](Long row, Long column) { list_.ItemTag(row, column); });
}

} // namespace lumtex
