#include "values/decimal.h"

#include "values/number_text.h"

#include <algorithm>

namespace lumtex {

namespace {

constexpr unsigned bitsOfWord = 32;

/// The digits of the integer, the lowest first, at least one in front of the decimals.
String digitsFromTheEnd(const Decimal& value) {
    auto words = value.words;
    String digits;
    const auto isZero = [&] {
        return std::all_of(words.begin(), words.end(), [](std::uint32_t word) { return word == 0; });
    };
    while (!isZero() || digits.size() <= value.scale) {
        std::uint64_t rest = 0;
        for (auto word = words.rbegin(); word != words.rend(); ++word) {
            rest = (rest << bitsOfWord) | *word;
            *word = static_cast<std::uint32_t>(rest / 10);
            rest %= 10;
        }
        digits.push_back(static_cast<char16_t>(u'0' + rest));
    }
    return digits;
}

} // namespace

Decimal toDecimal(Currency value) {
    constexpr Byte decimals = 4;
    const bool negative = value.tenThousandths < 0;
    const auto bits = static_cast<std::uint64_t>(value.tenThousandths);
    const std::uint64_t size = negative ? std::uint64_t{0} - bits : bits;
    return {{static_cast<std::uint32_t>(size), static_cast<std::uint32_t>(size >> bitsOfWord), 0},
            decimals,
            negative};
}

String textFromDecimal(const Decimal& value, char16_t decimalMark) {
    const String digits = digitsFromTheEnd(value);
    std::size_t last = 0;
    while (last < value.scale && digits[last] == u'0')
        ++last;
    String text;
    if (value.negative && value.words != Decimal().words)
        text.push_back(u'-');
    for (std::size_t i = digits.size(); i > last; --i) {
        if (i == value.scale)
            text.push_back(decimalMark);
        text.push_back(digits[i - 1]);
    }
    return text;
}

Double toDouble(const Decimal& value) {
    return readNumber(textFromDecimal(value, u'.')).value;
}

} // namespace lumtex
