/// \file
/// Reading a number out of a text, told apart by why it failed.
#pragma once

#include "values/types.h"

namespace lumtex {

/// What a text holds. A number that no Double can hold is not the same as no number at all: converting the
/// first overflows, converting the second is a type mismatch.
struct NumberFromText {
    enum Outcome : Byte { number, notANumber, tooLarge };

    Outcome outcome = notANumber;
    Double value = 0; ///< 0 unless the outcome is `number`
};

constexpr char16_t noGroupMark = 0;

/// What stands before the decimals, and what may stand behind any digit of the whole number and the decimals,
/// and means nothing.
struct NumberMarks {
    char16_t decimal = u'.';
    char16_t group = noGroupMark;
};

/// By the rules of docs/conversions.md. Takes time in proportion to the text and no memory of its own.
NumberFromText readNumber(StringView text, NumberMarks marks = {});

/// As the functions without a mark, which write a point.
String textFromNumber(Double value, char16_t decimalMark);
String textFromNumber(Single value, char16_t decimalMark);

} // namespace lumtex
