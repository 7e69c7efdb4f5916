/// \file
/// Lower-cased texts as the keys of a sort.
#pragma once

#include "ordering/pieces.h"
#include "records/compact_text.h"
#include "values/case_mapping.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace lumtex::ordering {

/// Units in blocks that stay where they are as more come.
template <class Unit>
class UnitStore {
  public:
    /// Room for so many; what was handed out before stays.
    Unit* take(std::size_t count) {
        if (count > left_) {
            left_ = std::max(count, blockSize);
            blocks_.push_back(std::make_unique_for_overwrite<Unit[]>(left_));
            next_ = blocks_.back().get();
        }
        left_ -= count;
        return std::exchange(next_, next_ + count);
    }

  private:
    static constexpr std::size_t blockSize = 65536;

    std::vector<std::unique_ptr<Unit[]>> blocks_;
    Unit* next_ = nullptr;
    std::size_t left_ = 0;
};

/// Lower-cased texts of a list's rows, as keys of a sort. `Unit` is `unsigned char` where no text has a code
/// unit above 255, else char16_t.
///
/// Each key carries the first eight bytes of its text, so that most comparisons look at two numbers.
template <class Unit>
class TextKeys {
  public:
    /// Each piece of the rows is to be read by a TextReader. Throws std::bad_alloc.
    explicit TextKeys(std::size_t rows)
        : count_(rows), keys_(std::make_unique_for_overwrite<Key[]>(rows)),
          texts_(std::make_unique_for_overwrite<Text[]>(rows + mostPieces)) {}

    std::size_t count() const { return count_; }
    /// Once sorted: where each row comes from.
    std::vector<std::uint32_t> order() const {
        std::vector<std::uint32_t> order(count_);
        std::transform(
            keys_.get(), keys_.get() + count_, order.begin(), [](const Key& key) { return key.row; });
        return order;
    }

  private:
    template <class>
    friend class TextReader;
    template <class, bool>
    friend class TextRows;

    // Neither has initial values, so that nobody writes them where readers will.
    struct Text {
        const Unit* begin;
        std::uint32_t length;
    };
    struct Key {
        std::uint64_t head; ///< the first units, the first of them highest, padded with zeros
        std::uint32_t row;
        std::uint32_t text; ///< which of `texts_`
    };

    std::size_t count_;
    std::unique_ptr<Key[]> keys_;
    std::unique_ptr<Text[]> texts_; ///< of each piece an empty one, then as many as it has rows at most
    std::array<UnitStore<Unit>, mostPieces> stores_;
};

/// Reads the keys of one piece; several of them may do so at the same time.
template <class Unit>
class TextReader {
  public:
    static constexpr std::size_t unitsInHead = sizeof(std::uint64_t) / sizeof(Unit);

    /// Throws std::bad_alloc, and so does `add`.
    TextReader(TextKeys<Unit>& keys, Piece piece)
        : next_(keys.keys_.get() + piece.first), row_(static_cast<std::uint32_t>(piece.first)),
          texts_(keys.texts_.get()), empty_(static_cast<std::uint32_t>(piece.first + piece.number)),
          textCount_(empty_ + 1), bitsOfPlace_(bitsFor(piece.end - piece.first)),
          known_(std::size_t{1} << bitsOfPlace_, Known{0, 0, empty_}), store_(keys.stores_[piece.number]) {
        texts_[empty_] = {nullptr, 0};
    }

    /// Null stands for the empty text. False, with nothing done, for a text that does not fit the unit.
    bool add(const CompactText* text) {
        if (text != nullptr && sizeof(Unit) < sizeof(char16_t) && text->isWide())
            return false;
        Text lowered{nullptr, 0};
        if (text != nullptr) {
            text->visit([&](auto units) {
                Unit* const begin = store_.take(units.size());
                std::transform(units.begin(), units.end(), begin, [](auto unit) {
                    if constexpr (sizeof unit == 1)
                        return static_cast<Unit>(lowerCaseOfByte(unit));
                    else
                        return static_cast<Unit>(lowerCase(unit));
                });
                lowered = {begin, static_cast<std::uint32_t>(units.size())};
            });
        }
        const std::uint64_t head = headOf(lowered);
        *next_++ = {head, row_++, known(head, lowered)};
        return true;
    }

  private:
    using Text = typename TextKeys<Unit>::Text;
    /// A text that came lately, by its first and last units.
    struct Known {
        std::uint64_t head;
        std::uint64_t tail;
        std::uint32_t text;
    };
    static constexpr std::size_t bitsOfUnit = 8 * sizeof(Unit);
    static constexpr unsigned mostBitsOfPlace = 12;

    static unsigned bitsFor(std::size_t rows) {
        return std::clamp(static_cast<unsigned>(std::bit_width(rows)), 1U, mostBitsOfPlace);
    }

    static std::uint64_t headOf(const Text& text) {
        std::uint64_t head = 0;
        for (std::size_t i = 0; i < unitsInHead; ++i)
            head = (head << bitsOfUnit) | (i < text.length ? text.begin[i] : std::uint64_t{0});
        return head;
    }
    /// Which of the texts it is; one that came lately has its place already. So most comparisons of equal
    /// texts, and each of a row with itself, need no look at them.
    std::uint32_t known(std::uint64_t head, const Text& text) {
        const std::uint64_t tail = text.length > unitsInHead
                                       ? headOf({text.begin + text.length - unitsInHead, unitsInHead})
                                       : text.length;
        const std::uint64_t mixed = (head ^ (tail * 0x9E3779B97F4A7C15U)) * 0xC2B2AE3D27D4EB4FU;
        Known& slot = known_[mixed >> (64U - bitsOfPlace_)];
        if (slot.head != head || slot.tail != tail || !same(texts_[slot.text], text)) {
            slot = {head, tail, textCount_++};
            texts_[slot.text] = text;
        }
        return slot.text;
    }
    static bool same(const Text& a, const Text& b) {
        return a.length == b.length && std::equal(a.begin, a.begin + a.length, b.begin);
    }

    typename TextKeys<Unit>::Key* next_;
    std::uint32_t row_;
    Text* texts_;
    std::uint32_t empty_; ///< place of the empty text
    std::uint32_t textCount_;
    unsigned bitsOfPlace_;
    std::vector<Known> known_; ///< by what heads and tails mix to
    UnitStore<Unit>& store_;
};

/// The rows for `quickSort`: a view of keys that were read, with a pivot of its own.
template <class Unit, bool descending>
class TextRows {
  public:
    static constexpr bool atHand = true;

    explicit TextRows(TextKeys<Unit>& keys) : keys_(keys.keys_.get()), texts_(keys.texts_.get()) {}

    void choosePivot(Long index) { pivot_ = at(index); }
    bool before(Long i) const { return descending ? less(pivot_, at(i)) : less(at(i), pivot_); }
    bool behind(Long j) const { return descending ? less(at(j), pivot_) : less(pivot_, at(j)); }
    void swap(Long i, Long j) { std::swap(at(i), at(j)); }
    void crossed(Long /*i*/, Long /*j*/) {}
    void join(const TextRows& /*other*/) {}
    bool pivotsAreRows() const { return true; }
    Long stopFromBelow(Long i, Long k) const { return comesFirst(i, k) ? k : i; }
    Long stopFromAbove(Long i, Long k) const { return comesFirst(k, i) ? k : i; }

  private:
    using Text = typename TextKeys<Unit>::Text;
    using Key = typename TextKeys<Unit>::Key;

    Key& at(Long index) const { return keys_[static_cast<std::size_t>(index)]; }
    bool comesFirst(Long i, Long k) const { return descending ? less(at(k), at(i)) : less(at(i), at(k)); }

    bool less(const Key& a, const Key& b) const {
        return a.head != b.head ? a.head < b.head : a.text != b.text && lessBehindHead(a, b);
    }
    bool lessBehindHead(const Key& keyA, const Key& keyB) const {
        constexpr std::size_t unitsInHead = TextReader<Unit>::unitsInHead;
        const Text& a = texts_[keyA.text];
        const Text& b = texts_[keyB.text];
        // Where one text ends within the head, the other goes on with zeros alone, if at all.
        if (std::min<std::size_t>(a.length, b.length) <= unitsInHead)
            return a.length < b.length;
        return std::lexicographical_compare(
            a.begin + unitsInHead, a.begin + a.length, b.begin + unitsInHead, b.begin + b.length);
    }

    Key* keys_;
    const Text* texts_;
    Key pivot_{};
};

} // namespace lumtex::ordering
