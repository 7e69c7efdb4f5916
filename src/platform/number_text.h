/// \file
/// Reading a number out of a text, told apart by why it failed.
#pragma once

#include "platform/types.h"

namespace lumtex {

/// What a text holds. A number that no Double can hold is not the same as no number at all: converting the
/// first overflows, converting the second is a type mismatch.
struct NumberFromText {
    enum Outcome : Byte { number, notANumber, tooLarge };

    Outcome outcome = notANumber;
    Double value = 0; ///< 0 unless the outcome is `number`
};

/// By the rules of docs/conversions.md. Takes time in proportion to the text and no memory of its own.
NumberFromText readNumber(StringView text);

} // namespace lumtex
