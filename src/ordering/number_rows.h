/// \file
/// Numbers and dates as the keys of a sort.
#pragma once

#include "records/compact_text.h"
#include "records/enumerations.h"

#include <array>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

namespace lumtex::ordering {

/// The key of a text that does not convert. No comparison with it holds, so it ends a scan, as the
/// failing comparison does.
constexpr Double unreadable = std::numeric_limits<Double>::quiet_NaN();

/// Reads keys as `numberKey` does, without its errors and, for plain decimal numbers, much faster.
class NumberReader {
  public:
    /// Throws std::bad_alloc, and so does `read`.
    explicit NumberReader(cSortType type);

    /// `unreadable` for what `numberKey` throws at.
    Double read(const CompactText& text);

    /// Whether the text form of each key so far would surely be read as that key again.
    bool readsBackItsKeys() const { return readsBack_; }

  private:
    /// A date that was read, by the sixteen bytes of its text. Columns of dates name the same days again and
    /// again.
    struct KnownDate {
        std::uint64_t low = 0;
        std::uint64_t high = 0; ///< the length of the text too, so no text is all zeros but the empty one
        Double key = unreadable;
    };

    Double readKnownDate(const CompactText& text);
    Double readText(const CompactText& text);
    Double readDate();

    /// A century has 36,525 days; a column may hold all of them.
    static constexpr unsigned bitsOfPlace = 14;
    static constexpr std::size_t datesInPlace = 4;

    using Place = std::array<KnownDate, datesInPlace>; ///< the last one read comes first
    std::vector<Place> knownDates_;                    ///< by what their texts mix to
    cSortType type_;
    unsigned char decimalMark_ = 0; ///< of plain numbers; 0 if it is no single byte
    bool readsBack_ = false;
    String buffer_;
};

/// What a pivot compares as after it went through its text form; `unreadable` where that is too large.
Double throughPivotText(Double key, cSortType type);

/// The rows for `quickSort`.
template <bool descending>
class NumberRows {
  public:
    static constexpr bool atHand = true;

    NumberRows(std::size_t count, cSortType type) : type_(type) {
        keys_.reserve(count + 2);
        keys_.push_back({unreadable, 0});
    }
    void add(Double key) { keys_.push_back({key, static_cast<std::uint32_t>(keys_.size() - 1)}); }

    /// Spares the pivots the way through their texts.
    void letKeysAreTheirPivots(bool value) { keysAreTheirPivots_ = value; }

    void choosePivot(Long index) {
        // The element behind the last stops a scan that runs out of the array.
        if (!closed_)
            keys_.push_back({unreadable, 0});
        closed_ = true;
        pivot_ = keysAreTheirPivots_ ? at(index).value : throughPivotText(at(index).value, type_);
        // A pivot that is too large to read back fails at each comparison.
        wouldReport_ = wouldReport_ || pivot_ != pivot_;
    }
    // Position -1 wraps round to the element in front.
    bool before(Long i) const { return descending ? at(i).value > pivot_ : at(i).value < pivot_; }
    bool behind(Long j) const { return descending ? at(j).value < pivot_ : at(j).value > pivot_; }
    void swap(Long i, Long j) { std::swap(at(i), at(j)); }
    void crossed(Long i, Long j) {
        wouldReport_ = wouldReport_ || j < 0 || static_cast<std::size_t>(i) + 2 >= keys_.size();
    }

    /// Whether a comparison failed for another reason than an unreadable key.
    bool wouldReport() const { return wouldReport_; }

    std::vector<std::uint32_t> order() const {
        std::vector<std::uint32_t> order;
        order.reserve(keys_.size());
        for (std::size_t i = 1; i + 1 < keys_.size(); ++i)
            order.push_back(keys_[i].row);
        return order;
    }

  private:
    struct Key {
        Double value;
        std::uint32_t row;
    };
    const Key& at(Long index) const { return keys_[static_cast<std::size_t>(index) + 1]; }
    Key& at(Long index) { return keys_[static_cast<std::size_t>(index) + 1]; }

    std::vector<Key> keys_; ///< from the second element on; ends with one more
    Double pivot_ = 0;
    cSortType type_;
    bool keysAreTheirPivots_ = false;
    bool closed_ = false;
    bool wouldReport_ = false;
};

} // namespace lumtex::ordering
