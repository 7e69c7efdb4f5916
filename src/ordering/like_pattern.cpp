#include "ordering/like_pattern.h"

#include "values/case_mapping.h"
#include "values/runtime_error.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace lumtex::ordering {

namespace {

constexpr bool isDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

/// The first such unit, or null.
const unsigned char* firstOf(char16_t unit, const unsigned char* from, std::size_t count) {
    return unit < 256 ? static_cast<const unsigned char*>(std::memchr(from, unit, count)) : nullptr;
}
const char16_t* firstOf(char16_t unit, const char16_t* from, std::size_t count) {
    return std::char_traits<char16_t>::find(from, count, unit);
}

} // namespace

LikePattern::LikePattern(StringView pattern, Letters letters) : letters_(letters) {
    segments_.emplace_back();
    for (std::size_t i = 0; i < pattern.size();) {
        const char16_t unit = pattern[i];
        if (unit == u'[') {
            i = addList(pattern, i + 1);
            continue;
        }
        ++i;
        if (unit == u'*')
            segments_.push_back({elements_.size(), 0});
        else if (unit == u'?')
            elements_.push_back({Element::anyUnit});
        else if (unit == u'#')
            elements_.push_back({Element::digit});
        else
            elements_.push_back({Element::literal, letter(unit)});
        segments_.back().length = elements_.size() - segments_.back().first;
    }
}

/// `next` is the place behind the opening bracket; gives the one behind the closing bracket.
std::size_t LikePattern::addList(StringView pattern, std::size_t next) {
    const std::size_t end = pattern.find(u']', next);
    if (end == StringView::npos)
        throw RuntimeError(ErrorNumber::invalidPatternString);
    StringView units = pattern.substr(next, end - next);
    if (units.empty())
        return end + 1;
    List list;
    // Alone in its brackets, the exclamation mark has nothing to exclude and stands for itself.
    if (units.size() > 1 && units.front() == u'!') {
        list.negated = true;
        units.remove_prefix(1);
    }
    while (!units.empty()) {
        const bool range = units.size() > 2 && units[1] == u'-';
        add(list, letter(units.front()), letter(units[range ? 2 : 0]));
        units.remove_prefix(range ? 3 : 1);
    }
    elements_.push_back({Element::inList, 0, lists_.size()});
    lists_.push_back(std::move(list));
    segments_.back().length = elements_.size() - segments_.back().first;
    return end + 1;
}

void LikePattern::add(List& list, char16_t first, char16_t last) {
    if (last < first)
        throw RuntimeError(ErrorNumber::invalidPatternString);
    for (std::size_t unit = first; unit <= last && unit < list.low.size(); ++unit)
        list.low.set(unit);
    if (last >= list.low.size())
        list.others.push_back({first, last});
}

bool LikePattern::List::holds(char16_t unit) const {
    const bool found =
        unit < low.size() ? low[unit] : std::any_of(others.begin(), others.end(), [&](const Range& range) {
            return unit >= range.first && unit <= range.last;
        });
    return found != negated;
}

char16_t LikePattern::letter(char16_t unit) const {
    return letters_ == folded ? foldCase(unit) : unit;
}

bool LikePattern::accepts(const Element& element, char16_t unit) const {
    switch (element.kind) {
    case Element::literal:
        return letter(unit) == element.unit;
    case Element::digit:
        return isDigit(unit);
    case Element::inList:
        return lists_[element.list].holds(letter(unit));
    case Element::anyUnit:
        break;
    }
    return true;
}

template <class Unit>
bool LikePattern::fits(const Segment& segment, const Unit* text) const {
    const Element* element = elements_.data() + segment.first;
    for (std::size_t i = 0; i < segment.length; ++i) {
        if (!accepts(element[i], text[i]))
            return false;
    }
    return true;
}

/// Where the segment, which is not empty, first fits, or null. `end` - `from` must hold it.
template <class Unit>
const Unit* LikePattern::find(const Segment& segment, const Unit* from, const Unit* end) const {
    const Unit* const last = end - segment.length;
    const Element& head = elements_[segment.first];
    const bool scans = head.kind == Element::literal && letters_ == byUnit;
    for (; from <= last; ++from) {
        if (scans) {
            from = firstOf(head.unit, from, static_cast<std::size_t>(last - from) + 1);
            if (from == nullptr)
                return nullptr;
        }
        if (fits(segment, from))
            return from;
    }
    return nullptr;
}

template <class Unit>
bool LikePattern::matchesUnits(const Unit* text, std::size_t size) const {
    if (size < elements_.size())
        return false;
    if (segments_.size() == 1)
        return size == elements_.size() && fits(segments_.front(), text);
    const Segment& head = segments_.front();
    const Segment& tail = segments_.back();
    const Unit* from = text + head.length;
    const Unit* const end = text + size - tail.length;
    if (!fits(head, text) || !fits(tail, end))
        return false;
    // The earliest place for each run leaves the most for the next, so none is ever tried again.
    for (std::size_t i = 1; i + 1 < segments_.size(); ++i) {
        if (segments_[i].length == 0)
            continue;
        if (static_cast<std::size_t>(end - from) < segments_[i].length)
            return false;
        from = find(segments_[i], from, end);
        if (from == nullptr)
            return false;
        from += segments_[i].length;
    }
    return true;
}

/// The bytes that such an element is, where it is a literal that at most two bytes are: a letter in both
/// cases, mostly.
std::optional<ByteFilter::Demand> LikePattern::demandOf(const Element& element) const {
    if (element.kind != Element::literal)
        return std::nullopt;
    std::vector<unsigned char> bytes;
    for (unsigned byte = 0; byte < 256; ++byte) {
        if (letter(static_cast<char16_t>(byte)) == element.unit)
            bytes.push_back(static_cast<unsigned char>(byte));
    }
    if (bytes.empty() || bytes.size() > 2)
        return std::nullopt;
    return ByteFilter::Demand{bytes.front(), bytes.back()};
}

ByteFilter LikePattern::filter() const {
    ByteFilter filter;
    for (const Segment& segment : segments_) {
        std::optional<ByteFilter::Demand> before;
        for (std::size_t i = 0; i < segment.length; ++i) {
            const std::optional<ByteFilter::Demand> demand = demandOf(elements_[segment.first + i]);
            if (before && demand) {
                filter.demandPair(*before, *demand);
                return filter;
            }
            if (demand)
                filter.demand(*demand);
            before = demand;
        }
    }
    return filter;
}

bool LikePattern::matches(StringView text) const {
    return matchesUnits(text.data(), text.size());
}

bool LikePattern::matches(std::span<const unsigned char> text) const {
    return matchesUnits(text.data(), text.size());
}

} // namespace lumtex::ordering
