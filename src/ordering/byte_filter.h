/// \file
/// A quick look that spares most texts a match by a pattern.
#pragma once

#include "records/compact_text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <type_traits>

namespace lumtex::ordering {

/// Up to two demands on a text in bytes: that one of two bytes occurs in it, wherever. What fails one of them
/// cannot match; what meets both must be looked at.
class ByteFilter {
  public:
    /// Takes the demand unless there are two already. The bytes may be the same.
    void demand(unsigned char one, unsigned char other) {
        const Demand demand = {everywhere(one), everywhere(other)};
        // One alone is asked for twice.
        if (count_ == 0)
            demands_ = {demand, demand};
        else if (count_ == 1)
            demands_[1] = demand;
        ++count_;
    }

    /// True also for texts that are not kept in bytes.
    bool mayMatch(const CompactText& text) const {
        if (count_ == 0 || text.isWide())
            return true;
        // Bytes behind the text may meet a demand as well, which costs no more than a look.
        if (const unsigned char* inside = text.insideBytes())
            return meetsAll({inside, sizeof(Lanes)});
        return text.visit([&](auto units) {
            if constexpr (std::is_same_v<decltype(units), StringView>)
                return true;
            else
                return meetsAll(units);
        });
    }

  private:
    using Lanes [[gnu::vector_size(16)]] = unsigned char;

    /// In each lane the byte that is looked for.
    struct Demand {
        Lanes one;
        Lanes other;
    };

    static Lanes everywhere(unsigned char byte) { return Lanes{} + byte; }
    /// Not 0 if one of sixteen bytes is what is looked for.
    static std::uint64_t meets(const unsigned char* bytes, const Demand& demand) {
        Lanes lanes;
        std::memcpy(&lanes, bytes, sizeof lanes);
        const auto found = (lanes == demand.one) | (lanes == demand.other);
        std::array<std::uint64_t, 2> halves;
        std::memcpy(halves.data(), &found, sizeof halves);
        return halves[0] | halves[1];
    }
    /// Of sixteen bytes and more, as texts outside a cell are longer than those inside.
    static bool meets(std::span<const unsigned char> bytes, const Demand& demand) {
        const std::size_t last = bytes.size() - sizeof(Lanes);
        std::uint64_t found = meets(bytes.data() + last, demand);
        for (std::size_t i = 0; i < last; i += sizeof(Lanes))
            found |= meets(bytes.data() + i, demand);
        return found != 0;
    }
    /// Asks for both without a branch between: nobody foresees one that hangs on a letter in a text.
    bool meetsAll(std::span<const unsigned char> bytes) const {
        return (static_cast<unsigned>(meets(bytes, demands_[0])) &
                static_cast<unsigned>(meets(bytes, demands_[1]))) != 0;
    }

    std::array<Demand, 2> demands_{};
    std::size_t count_ = 0;
};

} // namespace lumtex::ordering
