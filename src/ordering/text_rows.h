/// \file
/// Lower-cased texts as the keys of a sort.
#pragma once

#include "records/compact_text.h"
#include "values/case_mapping.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace lumtex::ordering {

/// The rows for `quickSort`. `Unit` is `unsigned char` where no text has a code unit above 255, else
/// char16_t.
///
/// All texts lie in one block. Each key carries the first eight bytes of its own, so that most comparisons
/// look at two numbers.
template <class Unit, bool descending>
class TextRows {
  public:
    /// `units` is the length of all texts together.
    TextRows(std::size_t count, std::size_t units) {
        keys_.reserve(count);
        texts_.reserve(units);
    }
    /// Null stands for the empty text. The lengths must not add up to more than the constructor was told.
    void add(const CompactText* text) {
        const std::size_t start = texts_.size();
        if (text != nullptr) {
            text->visit([&](auto units) {
                for (const auto unit : units)
                    texts_.push_back(static_cast<Unit>(lowerCase(unit)));
            });
        }
        Key key;
        key.text = texts_.data() + start;
        key.length = static_cast<std::uint32_t>(texts_.size() - start);
        key.row = static_cast<std::uint32_t>(keys_.size());
        for (std::size_t i = 0; i < unitsInHead; ++i) {
            const std::uint64_t unit = i < key.length ? key.text[i] : 0;
            key.head = (key.head << bitsOfUnit) | unit;
        }
        keys_.push_back(key);
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

    struct Key {
        std::uint64_t head = 0; ///< the first units, the first of them highest, padded with zeros
        const Unit* text = nullptr;
        std::uint32_t length = 0;
        std::uint32_t row = 0;
    };
    const Key& at(Long index) const { return keys_[static_cast<std::size_t>(index)]; }
    Key& at(Long index) { return keys_[static_cast<std::size_t>(index)]; }

    static bool less(const Key& a, const Key& b) {
        if (a.head != b.head)
            return a.head < b.head;
        // Where one text ends within the head, the other goes on with zeros alone, if at all.
        if (std::min(a.length, b.length) <= unitsInHead)
            return a.length < b.length;
        return std::lexicographical_compare(
            a.text + unitsInHead, a.text + a.length, b.text + unitsInHead, b.text + b.length);
    }

    std::vector<Key> keys_;
    std::vector<Unit> texts_; ///< never grows past its first capacity
    Key pivot_;
};

} // namespace lumtex::ordering
