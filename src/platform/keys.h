/// \file
/// The numbers of keys and the bits of shift keys, as events carry them and hosts know them.
#pragma once

#include "values/types.h"

namespace lumtex::keys {

// The classic virtual key numbers.

constexpr Integer backspace = 8;
constexpr Integer tab = 9;
constexpr Integer enter = 13; ///< also as a character
constexpr Integer shift = 16;
constexpr Integer control = 17;
constexpr Integer alt = 18;
constexpr Integer escape = 27;
constexpr Integer space = 32;
constexpr Integer end = 35;
constexpr Integer home = 36;
constexpr Integer left = 37;
constexpr Integer up = 38;
constexpr Integer right = 39;
constexpr Integer down = 40;
constexpr Integer del = 46;
constexpr Integer packet = 231; ///< stands for a character that has no key of its own

// The bits of `Shift` in mouse and key events.

constexpr Integer shiftMask = 1;
constexpr Integer controlMask = 2;
constexpr Integer altMask = 4;

} // namespace lumtex::keys
