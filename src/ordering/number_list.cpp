#include "ordering/number_list.h"

#include "values/locale.h"
#include "values/runtime_error.h"

#include <algorithm>

namespace lumtex::ordering {

void NumberList::append(Long first, Long last) {
    if (last < first)
        return;
    ranges_.push_back({size_, first, true});
    size_ += static_cast<std::size_t>(std::int64_t{last} - first + 1);
}

void NumberList::appendUnreadable() {
    ranges_.push_back({size_, 0, false});
    ++size_;
}

Long NumberList::atOfMany(std::size_t position) const {
    if (position >= size_)
        throw RuntimeError(ErrorNumber::subscriptOutOfRange);
    const auto next =
        std::upper_bound(ranges_.begin(), ranges_.end(), position, [](std::size_t value, const Range& range) {
            return value < range.start;
        });
    const Range& range = *(next - 1);
    if (!range.readable)
        throw RuntimeError(ErrorNumber::typeMismatch);
    return static_cast<Long>(range.first + static_cast<std::int64_t>(position - range.start));
}

namespace {

/// What stands before the next `separator`, which goes too.
StringView takePart(StringView& rest, char16_t separator) {
    const std::size_t end = rest.find(separator);
    const StringView part = rest.substr(0, end);
    rest.remove_prefix(end == StringView::npos ? rest.size() : end + 1);
    return part;
}

void appendItem(NumberList& numbers, StringView item, Long limit) {
    if (item.find(u'-') == StringView::npos) {
        const auto number = numberIn(item);
        // Wanted: a number below 1 stays in the list, and fails when its cell is read.
        if (number && *number <= limit)
            numbers.append(Variant(*number).toLong(), Variant(*number).toLong());
        return;
    }
    const auto first = numberIn(takePart(item, u'-'));
    const StringView end = takePart(item, u'-');
    const auto last = end == u"*" ? std::optional<Double>(limit) : numberIn(end);
    // Wanted: a range from a number to itself is left out.
    if (first && last && *last > *first && *last <= limit)
        numbers.append(Variant(*first).toLong(), Variant(*last).toLong());
}

/// A number that stands alone.
FindNotation readLoneNumber(StringView spec, Long limit) {
    FindNotation notation;
    const auto number = numberIn(spec);
    notation.valid = number.has_value();
    notation.empty = number && *number > limit;
    if (!number || *number > limit)
        return notation;
    // Wanted: the cut that takes the comma off a list takes the last digit off a lone number.
    const StringView cut = spec.substr(0, spec.size() - 1);
    if (cut.empty())
        return notation;
    if (const auto left = numberIn(cut))
        notation.numbers.append(Variant(*left).toLong(), Variant(*left).toLong());
    else
        notation.numbers.appendUnreadable();
    return notation;
}

} // namespace

FindNotation readFindNotation(StringView spec, Long limit) {
    const bool all = spec == u"*";
    const bool several = spec.find(u',') != StringView::npos;
    if (!all && !several && spec.find(u'-') == StringView::npos)
        return readLoneNumber(spec, limit);
    FindNotation notation;
    if (all) {
        notation.numbers.append(1, limit);
    } else {
        do
            appendItem(notation.numbers, takePart(spec, u','), limit);
        while (!spec.empty());
    }
    notation.empty = notation.numbers.size() == 0;
    return notation;
}

} // namespace lumtex::ordering
