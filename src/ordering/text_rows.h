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
        texts_.reserve(count);
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
                    return static_cast<Unit>(lowerCase(unit));
                });
                lowered = {begin, static_cast<std::uint32_t>(units.size())};
            });
        }
        keys_.push_back({headOf(lowered), static_cast<std::uint32_t>(keys_.size())});
        texts_.push_back(lowered);
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
    };
    const Key& at(Long index) const { return keys_[static_cast<std::size_t>(index)]; }
    Key& at(Long index) { return keys_[static_cast<std::size_t>(index)]; }

    static std::uint64_t headOf(const Text& text) {
        std::uint64_t head = 0;
        for (std::size_t i = 0; i < unitsInHead; ++i)
            head = (head << bitsOfUnit) | (i < text.length ? text.begin[i] : std::uint64_t{0});
        return head;
    }
    bool less(const Key& a, const Key& b) const {
        return a.head != b.head ? a.head < b.head : lessBehindHead(a, b);
    }
    bool lessBehindHead(const Key& keyA, const Key& keyB) const {
        const Text& a = texts_[keyA.row];
        const Text& b = texts_[keyB.row];
        // Where one text ends within the head, the other goes on with zeros alone, if at all.
        if (std::min(a.length, b.length) <= unitsInHead)
            return a.length < b.length;
        return std::lexicographical_compare(
            a.begin + unitsInHead, a.begin + a.length, b.begin + unitsInHead, b.begin + b.length);
    }

    std::vector<Key> keys_;
    std::vector<Text> texts_; ///< by row
    UnitStore<Unit> store_;
    Key pivot_{};
};

} // namespace lumtex::ordering
