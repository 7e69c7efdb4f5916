/// \file
/// Numbers as bytes, the lowest first.
#pragma once

#include "values/types.h"

#include <bit>
#include <cstddef>
#include <type_traits>

namespace lumtex::content {

namespace detail {

template <std::size_t size>
struct BitsOfSize;
template <>
struct BitsOfSize<1> {
    using Type = std::uint8_t;
};
template <>
struct BitsOfSize<2> {
    using Type = std::uint16_t;
};
template <>
struct BitsOfSize<4> {
    using Type = std::uint32_t;
};

} // namespace detail

/// A number that a content file holds: Byte, Integer, Long or Single.
template <class T>
concept ContentNumber = std::is_arithmetic_v<T> && sizeof(T) <= sizeof(Long) && !std::is_same_v<T, bool>;

/// Writes `sizeof(T)` bytes.
template <ContentNumber T>
void storeNumber(Byte* target, T value) {
    const auto bits = std::bit_cast<typename detail::BitsOfSize<sizeof(T)>::Type>(value);
    for (std::size_t i = 0; i < sizeof(T); ++i)
        target[i] = static_cast<Byte>(bits >> (8 * i));
}

/// Reads `sizeof(T)` bytes.
template <ContentNumber T>
T loadNumber(const Byte* source) {
    typename detail::BitsOfSize<sizeof(T)>::Type bits = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i)
        bits = static_cast<decltype(bits)>(bits | (static_cast<std::uint64_t>(source[i]) << (8 * i)));
    return std::bit_cast<T>(bits);
}

constexpr Integer booleanNumber(bool value) {
    return value ? Integer{-1} : Integer{0};
}

} // namespace lumtex::content
