/// \file
/// Lower-cased texts as the keys of a sort.
#pragma once

#include "records/compact_text.h"
#include "values/case_mapping.h"

#include <algorithm>
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

/// The rows for `quickSort`. `Unit` is `unsigned char` where no text has a code unit above 255, else
/// char16_t.
///
/// Each key carries the first eight bytes of its text, so that most comparisons look at two numbers.
template <class Unit, bool descending>
class TextRows {
  public:
    static constexpr bool atHand = true;

    explicit TextRows(std::size_t count) {
        keys_.reserve(count);
        texts_.reserve(count + 1);
        texts_.push_back({});
    }
    /// Null stands for the empty text. False, with nothing done, for a text that does not fit the unit.
    bool add(const CompactText* text) {
        if (text != nullptr && sizeof(Unit) < sizeof(char16_t) && text->isWide())
            return false;
        Text lowered;
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
        keys_.push_back({head, static_cast<std::uint32_t>(keys_.size()), known(head, lowered)});
        return true;
    }

    void choosePivot(Long index) { pivot_ = at(index); }
    bool before(Long i) const { return descending ? less(pivot_, at(i)) : less(at(i), pivot_); }
    bool behind(Long j) const { return descending ? less(at(j), pivot_) : less(pivot_, at(j)); }
    void swap(Long i, Long j) { std::swap(at(i), at(j)); }
    void crossed(Long /*i*/, Long /*j*/) {}

    std::vector<std::uint32_t> order() const {
        std::vector<std::uint32_t> order;
        order.reserve(keys_.size());
        for (const Key& key : keys_)
            order.push_back(key.row);
        return order;
    }

  private:
    static constexpr std::size_t bitsOfUnit = 8 * sizeof(Unit);
    static constexpr std::size_t unitsInHead = sizeof(std::uint64_t) / sizeof(Unit);

    struct Text {
        const Unit* begin = nullptr;
        std::uint32_t length = 0;
    };
    struct Key {
        std::uint64_t head; ///< the first units, the first of them highest, padded with zeros
        std::uint32_t row;
        std::uint32_t text; ///< which of `texts_`
    };
    /// A text that came lately, by its first and last units.
    struct Known {
        std::uint64_t head = 0;
        std::uint64_t tail = 0;
        std::uint32_t text = 0;
    };
    static constexpr unsigned bitsOfPlace = 12;

    const Key& at(Long index) const { return keys_[static_cast<std::size_t>(index)]; }
    Key& at(Long index) { return keys_[static_cast<std::size_t>(index)]; }

    static std::uint64_t headOf(const Text& text) {
        std::uint64_t head = 0;
        for (std::size_t i = 0; i < unitsInHead; ++i)
            head = (head << bitsOfUnit) | (i < text.length ? text.begin[i] : std::uint64_t{0});
        return head;
    }
    /// Where the text lies in `texts_`; one that came lately has its place already. So most comparisons of
    /// equal texts, and each of a row with itself, need no look at them.
    std::uint32_t known(std::uint64_t head, const Text& text) {
        const std::uint64_t tail = text.length > unitsInHead
                                       ? headOf({text.begin + text.length - unitsInHead, unitsInHead})
                                       : text.length;
        const std::uint64_t mixed = (head ^ (tail * 0x9E3779B97F4A7C15U)) * 0xC2B2AE3D27D4EB4FU;
        Known& slot = known_[mixed >> (64U - bitsOfPlace)];
        if (slot.head != head || slot.tail != tail || !same(texts_[slot.text], text)) {
            slot = {head, tail, static_cast<std::uint32_t>(texts_.size())};
            texts_.push_back(text);
        }
        return slot.text;
    }
    static bool same(const Text& a, const Text& b) {
        return a.length == b.length && std::equal(a.begin, a.begin + a.length, b.begin);
    }
    bool less(const Key& a, const Key& b) const {
        return a.head != b.head ? a.head < b.head : a.text != b.text && lessBehindHead(a, b);
    }
    bool lessBehindHead(const Key& keyA, const Key& keyB) const {
        const Text& a = texts_[keyA.text];
        const Text& b = texts_[keyB.text];
        // Where one text ends within the head, the other goes on with zeros alone, if at all.
        if (std::min(a.length, b.length) <= unitsInHead)
            return a.length < b.length;
        return std::lexicographical_compare(
            a.begin + unitsInHead, a.begin + a.length, b.begin + unitsInHead, b.begin + b.length);
    }

    std::vector<Key> keys_;
    std::vector<Text> texts_; ///< the empty one first
    std::vector<Known> known_ =
        std::vector<Known>(std::size_t{1} << bitsOfPlace); ///< by what heads and tails mix to
    UnitStore<Unit> store_;
    Key pivot_{};
};

} // namespace lumtex::ordering
