/// \file
/// The value types of the public interface, under the names that hosts know.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lumtex {

using Byte = std::uint8_t;
using Integer = std::int16_t;
using Long = std::int32_t;
using Single = float;
using Double = double;

/// Text as UTF-16 code units; lengths, patterns and comparisons count units, not characters.
using String = std::u16string;
using StringView = std::u16string_view;

/// 0xBBGGRR, the low byte red. With the high bit set the low byte numbers a system colour.
using OLE_COLOR = std::uint32_t;

/// Units a length is held in, for `scaleX` and `scaleY`.
enum class Unit : Byte { twips, pixels, himetric };

} // namespace lumtex
