#include "sortfind/sort_stepwise.h"

#include "ordering/sort_keys.h"

namespace lumtex {

SortStepwise::SortStepwise(lmListView& list,
                           ListRecords& records,
                           Procedure& procedure,
                           Long Column,
                           cSortType SortType,
                           cSortMode order)
    : list_(list), records_(records), procedure_(procedure), Column_(Column), type_(SortType),
      descending_(order == cDescending) {}

String SortStepwise::ItemText(Long index) {
    return list_.ItemText(static_cast<Double>(index) + 1, Column_);
}

void SortStepwise::choosePivot(Long index) {
    pivot_.clear();
    procedure_.step([&] {
        if (type_ == cSortText)
            pivot_ = ordering::textKey(ItemText(index));
        else if (type_ == cSortNumeric || type_ == cSortDate)
            pivot_ = ordering::pivotText(ordering::numberKey(ItemText(index), type_), type_);
    });
}

/// A test that fails ends its scan, or a pivot that does not convert would let the scans run for ever.
bool SortStepwise::test(Long index, bool greater) {
    return procedure_.condition([&] { return compare(index, greater); }, false);
}

bool SortStepwise::compare(Long index, bool greater) {
    if (type_ == cSortText) {
        const String key = ordering::textKey(ItemText(index));
        // Behind the array there is nothing left to scan, though no text lies before most others.
        const bool inside = index >= 0 && static_cast<std::size_t>(index) < records_.rows().size();
        return inside && (greater ? key > pivot_ : key < pivot_);
    }
    // Wanted: of any other type there is no key, so that each partition swaps all the way inwards.
    if (type_ != cSortNumeric && type_ != cSortDate)
        return false;
    const Double key = ordering::numberKey(ItemText(index), type_);
    const Double pivot = ordering::numberKey(pivot_, type_);
    return greater ? key > pivot : key < pivot;
}

void SortStepwise::swap(Long i, Long j) {
    procedure_.step([&] { records_.swapRows(i, j); });
}

} // namespace lumtex
