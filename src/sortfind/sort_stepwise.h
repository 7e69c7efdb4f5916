/// \file
/// Sorting step by step: one statement after another, with a report for each that fails.
#pragma once

#include "model/list_view.h"

namespace lumtex {

/// The rows of a list for `quickSort`: each comparison reads the cell anew, and what fails is reported under
/// the name of the sort. The host's code may run in a report and change the list.
class SortStepwise {
  public:
    /// `procedure` is that of the sort and outlives this object. `Column` counts from 1.
    SortStepwise(lmListView& list,
                 ListRecords& records,
                 Procedure& procedure,
                 Long Column,
                 cSortType SortType,
                 cSortMode order);

    void choosePivot(Long index);
    bool before(Long i) { return test(i, descending_); }
    bool behind(Long j) { return test(j, !descending_); }
    void swap(Long i, Long j);
    void crossed(Long /*i*/, Long /*j*/) {}

  private:
    String ItemText(Long index);
    bool test(Long index, bool greater);
    bool compare(Long index, bool greater);

    lmListView& list_;
    ListRecords& records_;
    Procedure& procedure_;
    String pivot_;
    Long Column_;
    cSortType type_;
    bool descending_;
};

} // namespace lumtex
