/// \file
/// The test of one search, made once and asked for every cell.
#pragma once

#include "ordering/like_pattern.h"
#include "platform/runtime.h"
#include "records/compact_text.h"
#include "records/enumerations.h"

#include <optional>

namespace lumtex::ordering {

/// Answers as `LikeCompBinary` or `LikeCompText` does, a report for each call with a faulty pattern included.
class FindMatcher {
  public:
    /// An unknown `compare` matches nothing. `pattern` must live as long as this object.
    FindMatcher(Runtime& runtime, StringView pattern, cFindCompare compare);

    bool matches(const CompactText& text) const { return !refuses(text) && matchesWhatMay(text); }
    /// No match, by a look that runs no code of the host. What is not refused must be asked for.
    bool refuses(const CompactText& text) const { return !filter_.mayMatch(text); }
    /// Marks for what is not refused.
    ByteFilter::Marks marksOf(const CompactText& text) const { return filter_.marksOf(text); }
    bool matches(StringView text) const;

  private:
    bool matchesWhatMay(const CompactText& text) const;
    bool matchesStepwise(StringView text) const;

    Runtime& runtime_;
    StringView pattern_;
    cFindCompare compare_;
    std::optional<LikePattern> atOnce_; ///< none for a faulty pattern
    ByteFilter filter_;                 ///< lets all texts through where there is no pattern
};

} // namespace lumtex::ordering
