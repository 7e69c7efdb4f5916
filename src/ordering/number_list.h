/// \file
/// The columns or rows that a search covers.
#pragma once

#include "values/types.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace lumtex::ordering {

/// An ordered list of numbers, kept as ranges, so that "all of a million rows" takes no more room than one
/// number.
class NumberList {
  public:
    /// Appends `first`, `first` + 1, ..., `last`; nothing if `last` lies below.
    void append(Long first, Long last);
    /// Appends what was a number before its last character was cut; reading it is a type mismatch.
    void appendUnreadable();

    std::size_t size() const { return size_; }
    /// `position` counts from 0. Throws RuntimeError 9 past the end, 13 for what is not readable.
    Long at(std::size_t position) const {
        // As a rule all of a search's numbers are one range.
        if (position < size_ && ranges_.size() == 1 && ranges_.front().readable)
            return static_cast<Long>(ranges_.front().first + static_cast<std::int64_t>(position));
        return atOfMany(position);
    }

  private:
    Long atOfMany(std::size_t position) const;

    struct Range {
        std::size_t start; ///< position of its first number
        Long first;
        bool readable;
    };
    std::vector<Range> ranges_;
    std::size_t size_ = 0;
};

/// What a specification in the notation of searches means.
struct FindNotation {
    /// False: not a specification at all, and the search ends without a word.
    bool valid = true;
    /// Nothing was left whose last character could be cut.
    bool empty = false;
    NumberList numbers;
};

/// Reads "*", single numbers, and lists of numbers and ranges such as "1,3-5,7-*". `limit` is the count of
/// columns or rows; greater numbers are left out, those below 1 are not.
FindNotation readFindNotation(StringView spec, Long limit);

} // namespace lumtex::ordering
