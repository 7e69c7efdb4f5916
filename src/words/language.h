/// \file
/// The languages that the product speaks.
#pragma once

#include <array>

namespace lumtex::words {

enum class Language { english, german };

inline constexpr std::array languages{Language::english, Language::german};

} // namespace lumtex::words
