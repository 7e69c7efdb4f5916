/// \file
/// Numbers and dates as the keys of a sort.
#pragma once

#include "ordering/pieces.h"
#include "records/compact_text.h"
#include "records/enumerations.h"
#include "values/locale.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

namespace lumtex::ordering {

/// The key of a text that does not convert. No comparison with it holds, so it ends a scan, as the
/// failing comparison does.
constexpr Double unreadable = std::numeric_limits<Double>::quiet_NaN();

/// Reads keys as `numberKey` does, without its errors and, for plain decimal numbers, much faster.
class NumberReader {
  public:
    /// For about so many rows. `locale` must outlive this. Throws std::bad_alloc, and so does `read`.
    NumberReader(cSortType type, std::size_t rows, const Locale& locale = currentLocale());

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
    Double readNumber();

    /// A century has 36,525 days; a column may hold all of them, and a short one needs no room for them.
    static constexpr unsigned mostBitsOfPlace = 14;
    static constexpr std::size_t datesInPlace = 4;

    using Place = std::array<KnownDate, datesInPlace>; ///< the last one read comes first
    std::vector<Place> knownDates_;                    ///< by what their texts mix to
    unsigned bitsOfPlace_;
    cSortType type_;
    const Locale& locale_;
    unsigned char decimalMark_ = 0; ///< of plain numbers; 0 if it is no single byte
    bool readsBack_ = true;
    String buffer_;
};

/// What a pivot compares as after it went through its text form; `unreadable` where that is too large.
Double throughPivotText(Double key, cSortType type);

/// Numbers or dates of a list's rows, as keys of a sort.
class NumberKeys {
    struct Key {
        Double value;
        std::uint32_t row;
    };

  public:
    /// Each piece of the rows is to be filled. Throws std::bad_alloc.
    explicit NumberKeys(std::size_t rows);

    /// The keys of a piece, one row after another; several pieces may be filled at the same time.
    class Filler {
      public:
        Filler(NumberKeys& keys, Piece piece)
            : next_(keys.front() + piece.first), row_(static_cast<std::uint32_t>(piece.first)) {}
        void add(Double key) { *next_++ = {key, row_++}; }

      private:
        Key* next_;
        std::uint32_t row_;
    };

    std::size_t count() const { return count_; }
    /// Once sorted: where each row comes from.
    std::vector<std::uint32_t> order() const;

  private:
    template <bool>
    friend class NumberRows;

    Key* front() const { return keys_.get() + 1; }

    std::size_t count_;
    std::unique_ptr<Key[]> keys_; ///< with an unreadable one at either end, which stops a scan that runs out
};

/// The rows for `quickSort`: a view of keys that were read, with a pivot of its own.
template <bool descending>
class NumberRows {
  public:
    static constexpr bool atHand = true;

    /// `keysAreTheirPivots` spares the pivots the way through their texts.
    NumberRows(const NumberKeys& keys, cSortType type, bool keysAreTheirPivots)
        : keys_(keys.keys_.get()), count_(static_cast<Long>(keys.count())), type_(type),
          keysAreTheirPivots_(keysAreTheirPivots) {}

    void choosePivot(Long index) {
        pivot_ = keysAreTheirPivots_ ? at(index).value : throughPivotText(at(index).value, type_);
        // A pivot that is too large to read back fails at each comparison.
        wouldReport_ = wouldReport_ || pivot_ != pivot_;
    }
    // Position -1 is that of the element in front.
    bool before(Long i) const { return descending ? at(i).value > pivot_ : at(i).value < pivot_; }
    bool behind(Long j) const { return descending ? at(j).value < pivot_ : at(j).value > pivot_; }
    void swap(Long i, Long j) { std::swap(at(i), at(j)); }
    void crossed(Long i, Long j) { wouldReport_ = wouldReport_ || j < 0 || i >= count_; }
    void join(const NumberRows& other) { wouldReport_ = wouldReport_ || other.wouldReport_; }
    // A key that compares with none stops every scan.
    bool pivotsAreRows() const { return keysAreTheirPivots_; }
    Long stopFromBelow(Long i, Long k) const { return isReadable(i) && !comesFirst(k, i) ? k : i; }
    Long stopFromAbove(Long i, Long k) const { return isReadable(i) && !comesFirst(i, k) ? k : i; }

    /// Whether a comparison failed for another reason than an unreadable key.
    bool wouldReport() const { return wouldReport_; }

  private:
    using Key = NumberKeys::Key;

    Key& at(Long index) const { return keys_[static_cast<std::ptrdiff_t>(index) + 1]; }
    bool isReadable(Long i) const { return at(i).value == at(i).value; }
    bool comesFirst(Long i, Long k) const {
        return descending ? at(i).value > at(k).value : at(i).value < at(k).value;
    }

    Key* keys_;
    Long count_;
    Double pivot_ = 0;
    cSortType type_;
    bool keysAreTheirPivots_;
    bool wouldReport_ = false;
};

} // namespace lumtex::ordering
