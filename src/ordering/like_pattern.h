/// \file
/// The pattern language of searches.
#pragma once

#include "ordering/byte_filter.h"
#include "values/types.h"

#include <bitset>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace lumtex::ordering {

/// A pattern, ready to be matched against any number of texts. It matches a whole text:
///
///     *             any run of code units, none too
///     ?             one code unit
///     #             one digit, 0 to 9
///     [list]        one unit of the list, in which a-z is a range; [!list] one that is not in it
///     []            nothing at all
///     any other     itself; so do the special ones inside brackets, "]" outside, and "-" at an end of a list
///
/// Units count, not characters. Matching takes time in proportion to the lengths of text and pattern
/// multiplied, at worst, and no memory.
class LikePattern {
  public:
    enum Letters : Byte {
        byUnit, ///< units compare as they are
        folded, ///< units compare by their simple case folding (`foldCase`), in ranges too
    };

    /// Throws RuntimeError 93 for a bracket that is not closed, and for a range whose ends are in the wrong
    /// order, wherever in the pattern they stand. Points into nothing of `pattern`.
    LikePattern(StringView pattern, Letters letters);

    bool matches(StringView text) const;
    /// The same for a text that holds no unit above 255.
    bool matches(std::span<const unsigned char> text) const;
    /// What a text must hold to match.
    ByteFilter filter() const;

  private:
    struct Range {
        char16_t first;
        char16_t last;
    };
    struct List {
        std::bitset<256> low;      ///< the units below 256 that are in it
        std::vector<Range> others; ///< ranges that reach further
        bool negated = false;
        bool holds(char16_t unit) const;
    };
    struct Element {
        enum Kind : Byte { literal, anyUnit, digit, inList };
        Kind kind = literal;
        char16_t unit = 0;    ///< of a literal
        std::size_t list = 0; ///< which of `lists_`
    };
    /// A run of elements between asterisks; each takes one unit.
    struct Segment {
        std::size_t first = 0;
        std::size_t length = 0;
    };

    std::size_t addList(StringView pattern, std::size_t next);
    void add(List& list, char16_t first, char16_t last);
    template <class Unit>
    bool matchesUnits(const Unit* text, std::size_t size) const;
    template <class Unit>
    bool fits(const Segment& segment, const Unit* text) const;
    template <class Unit>
    const Unit* find(const Segment& segment, const Unit* from, const Unit* end) const;
    bool accepts(const Element& element, char16_t unit) const;
    char16_t letter(char16_t unit) const;
    std::optional<ByteFilter::Demand> demandOf(const Element& element) const;

    std::vector<Element> elements_;
    std::vector<List> lists_;
    std::vector<Segment> segments_; ///< one more than there are asterisks
    Letters letters_;
};

} // namespace lumtex::ordering
