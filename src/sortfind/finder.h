/// \file
/// Searching cells by a pattern.
#pragma once

#include "model/list_view_core.h"
#include "ordering/find_matcher.h"
#include "ordering/number_list.h"
#include "records/enumerations.h"
#include "sortfind/find_results.h"

namespace lumtex {

class Finder : private ListPart {
  public:
    explicit Finder(ListViewCore& core) : ListPart(core) {}

    /// See `lmListView`.
    FindResults
    FindItem(StringView sFind, cFindBegin cBegin, cFindCompare cCompare, String& sColumns, String& sRows);

  private:
    friend class ListViewInspector; ///< how tests look inside

    /// What a search leaves behind for the next.
    struct State {
        String findColumnSpec; ///< what `findColumnList` was read from
        String findRowSpec;
        ordering::NumberList findColumnList; ///< numbers from 1
        ordering::NumberList findRowList;
        Long findRowPos = 0; ///< where a continued search starts: positions in the lists, from 0
        Long findColumnPos = 0;
    };

    static bool readNotation(
        StringView text, Long limit, String& cachedText, ordering::NumberList& cachedList, Procedure& p);
    FindResults scanTexts(const ordering::FindMatcher& matcher);
    FindResults scanTags(const ordering::FindMatcher& matcher, Procedure& p);
    template <class RowRefused, class Test, class Report>
    FindResults scan(RowRefused rowRefused, Test test, Report report);
    bool textsRefused(const ordering::FindMatcher& matcher, const Items& cells);
    FindResults noteHit(Long r, Long c);

    State state_;
};

} // namespace lumtex
