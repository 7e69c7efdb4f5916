/// \file
/// Short texts a block at a time.
#pragma once

#include "values/types.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace lumtex {

namespace detail {

/// Calls `take` for blocks of a fixed size that cover `size` units, the last of which may overlap the one
/// before: such a block becomes a few wide instructions, where a loop over a short text costs more than its
/// units.
template <class Take>
void inBlocks(std::size_t size, Take take) {
    if (size >= 16) {
        for (std::size_t i = 0; i + 16 < size; i += 16)
            take.template operator()<16>(i);
        take.template operator()<16>(size - 16);
    } else if (size >= 8) {
        take.template operator()<8>(0);
        take.template operator()<8>(size - 8);
    } else if (size >= 4) {
        take.template operator()<4>(0);
        take.template operator()<4>(size - 4);
    } else {
        for (std::size_t i = 0; i < size; ++i)
            take.template operator()<1>(i);
    }
}

} // namespace detail

/// All bits that occur in the units.
template <class Unit>
Unit bitsOf(const Unit* units, std::size_t size) {
    Unit seen{};
    detail::inBlocks(size, [&]<std::size_t count>(std::size_t at) {
        for (std::size_t i = 0; i < count; ++i)
            seen = static_cast<Unit>(seen | units[at + i]);
    });
    return seen;
}

/// Copies units into those of another width, which lose their upper bits there, and gives all bits that occur
/// in them. The two must not overlap.
template <class From, class To>
From copyUnits(const From* from, std::size_t size, To* to) {
    From seen{};
    detail::inBlocks(size, [&]<std::size_t count>(std::size_t at) {
        // By way of memory that nobody else sees, so that the compiler need not think of an overlap.
        std::array<From, count> read;
        std::memcpy(read.data(), from + at, sizeof read);
        std::array<To, count> written;
        for (std::size_t i = 0; i < count; ++i) {
            written[i] = static_cast<To>(read[i]);
            seen = static_cast<From>(seen | read[i]);
        }
        std::memcpy(to + at, written.data(), sizeof written);
    });
    return seen;
}

/// Where the unit first stands, from 0, or npos.
inline std::size_t indexOfUnit(StringView text, char16_t unit) {
    constexpr std::size_t atATime = 4;
    constexpr std::uint64_t ones = 0x0001000100010001;
    std::size_t i = 0;
    if constexpr (std::endian::native == std::endian::little) {
        for (; i + atATime <= text.size(); i += atATime) {
            std::uint64_t units = 0;
            std::memcpy(&units, text.data() + i, sizeof units);
            // The lowest bit set here belongs to the first unit that became zero; those above it may lie.
            units ^= ones * unit;
            const std::uint64_t zero = (units - ones) & ~units & (ones << 15U);
            if (zero != 0)
                return i + static_cast<std::size_t>(std::countr_zero(zero)) / 16;
        }
    }
    for (; i < text.size(); ++i) {
        if (text[i] == unit)
            return i;
    }
    return StringView::npos;
}

} // namespace lumtex
