/// \file
/// The text of a cell as the bytes of a content file.
#pragma once

#include "platform/runtime.h"
#include "records/compact_text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace lumtex {

/// Bytes of the number in front of each text.
inline constexpr std::size_t textLengthSize = sizeof(Long);

/// A byte for each code unit, in the ANSI code page.
class TextEncoder {
  public:
    /// The locale must outlive this.
    explicit TextEncoder(const SystemLocale& locale) : locale_(locale) {}

    /// How many bytes `encode` may write to, which are more than those of a short text.
    static std::size_t roomFor(const CompactText& text) { return std::max(text.size(), shortest); }
    /// Writes `text.size()` bytes, and anything into the rest of the room. Throws std::bad_alloc.
    void encode(const CompactText& text, Byte* target) {
        if (const Byte* const inside = text.insideBytes()) {
            // All that lies there: nobody foresees how short the next text is.
            std::array<std::uint64_t, 2> bytes;
            std::memcpy(bytes.data(), inside, sizeof bytes);
            std::memcpy(target, bytes.data(), sizeof bytes);
            if (((bytes[0] | bytes[1]) & upperHalves) == 0)
                return;
        }
        encodeOther(text, target);
    }

  private:
    static constexpr std::size_t shortest = 16;

    /// The lower half of a byte's values is the same in every ANSI code page.
    static constexpr Byte upperHalf = 0x80;
    static constexpr std::uint64_t upperHalves = 0x8080808080808080; ///< of eight bytes

    void encodeOther(const CompactText& text, Byte* target);

    const SystemLocale& locale_;
    String scratch_;
};

} // namespace lumtex
