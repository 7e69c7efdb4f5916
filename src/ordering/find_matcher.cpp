#include "ordering/find_matcher.h"

#include "guards/failure_of.h"
#include "ordering/like_comp.h"

namespace lumtex::ordering {

FindMatcher::FindMatcher(Runtime& runtime, StringView pattern, cFindCompare compare)
    : runtime_(runtime), pattern_(pattern), compare_(compare) {
    if (compare == cFindBinary || compare == cFindText) {
        ignoringErrors([&] {
            atOnce_.emplace(pattern, compare == cFindText ? LikePattern::folded : LikePattern::byUnit);
            filter_ = atOnce_->filter();
        });
    }
}

bool FindMatcher::matchesWhatMay(const CompactText& text) const {
    if (atOnce_)
        return text.visit([&](auto units) { return atOnce_->matches(units); });
    return matchesStepwise(text.toString());
}

bool FindMatcher::matches(StringView text) const {
    return atOnce_ ? atOnce_->matches(text) : matchesStepwise(text);
}

bool FindMatcher::matchesStepwise(StringView text) const {
    if (compare_ == cFindBinary)
        return LikeCompBinary(runtime_, text, pattern_);
    return compare_ == cFindText && LikeCompText(runtime_, text, pattern_);
}

} // namespace lumtex::ordering
