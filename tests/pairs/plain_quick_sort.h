/// \file
/// The sort written down word for word, slow and recursive, as the oracle for the real one.
#pragma once

#include "records/enumerations.h"
#include "values/case_mapping.h"
#include "values/runtime_error.h"
#include "values/variant.h"

#include <cmath>
#include <vector>

namespace lumtex::testing {

/// A row as far as a sort can be told to have moved it.
struct PlainRow {
    String text;
    bool selected = false;
    Single height = 0;
    bool operator==(const PlainRow&) const = default;
};

/// `QuickSortAsc` and `QuickSortDesc` over plain rows. A comparison that fails ends its scan and counts as
/// one report, by its number.
class PlainQuickSort {
  public:
    PlainQuickSort(std::vector<PlainRow>& rows, cSortType type, bool descending)
        : rows_(rows), type_(type), descending_(descending) {}

    std::vector<Long> reports;

    void run(Long First, Long Last) {
        Long i = First;
        Long j = Last;
        String pivot;
        const Double pivotRow = (static_cast<Double>(First) + static_cast<Double>(Last)) / 2 + 1;
        attempt([&] {
            const String text = ItemText(pivotRow);
            if (type_ == cSortText)
                pivot = lowered(text);
            else if (type_ == cSortNumeric)
                pivot = Variant(Variant(text).toDouble()).toText();
            else if (type_ == cSortDate)
                pivot = Variant(Variant(text).toDate()).toText();
            return true;
        });
        do {
            while (attempt([&] { return descending_ ? above(i, pivot) : below(i, pivot); }))
                i = i + 1;
            while (attempt([&] { return descending_ ? below(j, pivot) : above(j, pivot); }))
                j = j - 1;
            if (i <= j) {
                std::swap(rows_[static_cast<std::size_t>(i)], rows_[static_cast<std::size_t>(j)]);
                i = i + 1;
                j = j - 1;
            }
        } while (!(i > j));
        // A scan that ran through the whole range would call the routine with the same range for ever.
        if (First < j && j != Last)
            run(First, j);
        if (i < Last && i != First)
            run(i, Last);
    }

  private:
    template <class Test>
    bool attempt(Test test) {
        try {
            return test();
        } catch (const RuntimeError& error) {
            reports.push_back(error.number());
            return false;
        }
    }

    /// `Row` counts from 1; reports on its own, like the accessor.
    String ItemText(Double Row) {
        const auto index = static_cast<std::int64_t>(std::nearbyint(Row - 1));
        if (index < 0 || index >= static_cast<std::int64_t>(rows_.size())) {
            reports.push_back(numberOf(ErrorNumber::subscriptOutOfRange));
            return {};
        }
        return rows_[static_cast<std::size_t>(index)].text;
    }
    static String lowered(String text) {
        for (char16_t& unit : text)
            unit = lowerCase(unit);
        return text;
    }
    bool below(Long index, const String& pivot) { return compare(index, pivot) < 0; }
    bool above(Long index, const String& pivot) { return compare(index, pivot) > 0; }
    int compare(Long index, const String& pivot) {
        const auto order = [](auto a, auto b) { return a < b ? -1 : a > b ? 1 : 0; };
        if (type_ == cSortText)
            return lowered(ItemText(index + 1.0)).compare(pivot);
        if (type_ == cSortNumeric) {
            const Double key = Variant(ItemText(index + 1.0)).toDouble();
            return order(key, Variant(pivot).toDouble());
        }
        if (type_ == cSortDate) {
            const Double key = Variant(ItemText(index + 1.0)).toDate().days;
            return order(key, Variant(pivot).toDate().days);
        }
        return 0;
    }

    std::vector<PlainRow>& rows_;
    cSortType type_;
    bool descending_;
};

} // namespace lumtex::testing
