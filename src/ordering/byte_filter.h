/// \file
/// A quick look that spares most texts a match by a pattern.
#pragma once

#include "records/compact_text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace lumtex::ordering {

/// What a text in bytes must hold to match: one of two bytes, wherever, and another such pair, wherever or
/// directly behind the first. What lacks it cannot match; what holds it must be looked at.
class ByteFilter {
  private:
    using Lanes [[gnu::vector_size(16)]] = unsigned char;

  public:
    /// What a look at a text found. That of several texts is found in one of them at least.
    class Marks {
      public:
        Marks() = default;
        Marks& operator|=(const Marks& other) {
            lanes_ |= other.lanes_;
            return *this;
        }
        bool any() const {
            std::array<std::uint64_t, 2> halves;
            std::memcpy(halves.data(), &lanes_, sizeof lanes_);
            return (halves[0] | halves[1]) != 0;
        }

      private:
        friend class ByteFilter;
        explicit Marks(Lanes lanes) : lanes_(lanes) {}

        Lanes lanes_{}; ///< not 0 where the demand is met
    };

    /// One of two bytes, which may be the same.
    struct Demand {
        unsigned char one = 0;
        unsigned char other = 0;
    };

    /// Takes the demand unless there are two already.
    void demand(Demand demand) {
        if (kind_ == nothing)
            become(single, demand, demand);
        else if (kind_ == single)
            become(both, firstAsked_, demand);
    }
    /// In place of what was demanded before.
    void demandPair(Demand first, Demand second) { become(pair, first, second); }

    /// Marks for a text that may match, among them all that are not kept in bytes.
    Marks marksOf(const CompactText& text) const {
        if (kind_ == nothing || text.isWide())
            return Marks(everywhere(1));
        // Bytes behind the text may meet a demand as well, which costs no more than a look.
        const std::span<const unsigned char> bytes = text.bytesAround();
        if (kind_ == pair)
            return marksIn(bytes, [&](Lanes lanes) { return meets(lanes, 0) & behind(meets(lanes, 1)); });
        const Marks first = marksIn(bytes, [&](Lanes lanes) { return meets(lanes, 0); });
        if (kind_ == single)
            return first;
        const Marks second = marksIn(bytes, [&](Lanes lanes) { return meets(lanes, 1); });
        // Without a branch between: nobody foresees one that hangs on a letter in a text.
        const unsigned found = static_cast<unsigned>(first.any()) & static_cast<unsigned>(second.any());
        return Marks(everywhere(static_cast<unsigned char>(found)));
    }
    bool mayMatch(const CompactText& text) const { return marksOf(text).any(); }

  private:
    enum Kind : unsigned char { nothing, single, both, pair };

    void become(Kind kind, Demand first, Demand second) {
        kind_ = kind;
        firstAsked_ = first;
        demands_ = {{{everywhere(first.one), everywhere(first.other)},
                     {everywhere(second.one), everywhere(second.other)}}};
    }
    static Lanes everywhere(unsigned char byte) { return Lanes{} + byte; }
    Lanes meets(Lanes lanes, std::size_t which) const {
        const std::array<Lanes, 2>& demand = demands_[which];
        return static_cast<Lanes>((lanes == demand[0]) | (lanes == demand[1]));
    }
    /// In each lane what was in the next.
    static Lanes behind(Lanes lanes) {
        return __builtin_shufflevector(lanes, Lanes{}, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16);
    }
    /// Of sixteen bytes and more, in blocks that overlap by one, so that no pair falls between two.
    template <class Look>
    static Marks marksIn(std::span<const unsigned char> bytes, Look look) {
        const auto at = [&](std::size_t place) {
            Lanes lanes;
            std::memcpy(&lanes, bytes.data() + place, sizeof lanes);
            return look(lanes);
        };
        constexpr std::size_t step = sizeof(Lanes) - 1;
        const std::size_t last = bytes.size() - sizeof(Lanes);
        // Both ends are looked at without asking whether they are the same, as nobody foresees the answer.
        Lanes found = at(0) | at(last);
        for (std::size_t i = step; i < last; i += step)
            found |= at(i);
        return Marks(found);
    }

    Kind kind_ = nothing;
    Demand firstAsked_;
    std::array<std::array<Lanes, 2>, 2> demands_{}; ///< in each lane a byte that is looked for
};

} // namespace lumtex::ordering
