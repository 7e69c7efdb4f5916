/// \file
/// A quick look that spares most texts a match by a pattern.
#pragma once

#include "records/compact_text.h"

#include <array>
#include <cstddef>
#include <span>
#include <type_traits>

namespace lumtex::ordering {

/// Up to two demands on a text in bytes: that one of two bytes occurs in it, wherever. What fails one of them
/// cannot match; what meets both must be looked at.
class ByteFilter {
  public:
    /// Takes the demand unless there are two already. The bytes may be the same.
    void demand(unsigned char one, unsigned char other) {
        if (count_ < demands_.size())
            demands_[count_++] = {one, other};
    }

    /// True also for texts that are not kept in bytes.
    bool mayMatch(const CompactText& text) const {
        if (count_ == 0 || text.isWide())
            return true;
        // Bytes behind the text may meet a demand as well, which costs no more than a look.
        if (const unsigned char* inside = text.insideBytes())
            return meets(std::span<const unsigned char, 16>(inside, 16));
        return text.visit([&](auto units) {
            if constexpr (std::is_same_v<decltype(units), StringView>)
                return true;
            else
                return meets(units);
        });
    }

  private:
    struct Demand {
        unsigned char one;
        unsigned char other;
    };

    /// Goes through all bytes without a branch, so that wide instructions take many at a time.
    template <class Bytes>
    static bool meets(Bytes bytes, Demand demand) {
        unsigned char found = 0;
        for (const unsigned char byte : bytes)
            found = static_cast<unsigned char>(found | static_cast<unsigned char>(byte == demand.one) |
                                               static_cast<unsigned char>(byte == demand.other));
        return found != 0;
    }
    template <class Bytes>
    bool meets(Bytes bytes) const {
        for (std::size_t i = 0; i < count_; ++i) {
            if (!meets(bytes, demands_[i]))
                return false;
        }
        return true;
    }

    std::array<Demand, 2> demands_{};
    std::size_t count_ = 0;
};

} // namespace lumtex::ordering
