/// Text to number, by rules that no user changes.
#include "values/number_text.h"

#include "values/text.h"
#include "values/variant.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace lumtex {

namespace {

constexpr bool isDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

/// A number's significant digits, its decimal point taken out of them: 0.d1d2d3... times ten to `exponent`.
///
/// Holds no more digits than can matter: a Double is decided by its first 768, what follows only tells
/// whether the number lies above that, for which one more digit stands.
class Significand {
  public:
    void add(char16_t digit, bool behindPoint) {
        if (count_ == 0 && digit == u'0') {
            exponent_ -= behindPoint ? 1 : 0;
            return;
        }
        exponent_ += behindPoint ? 0 : 1;
        if (count_ < decidingDigits)
            digits_[count_++] = static_cast<char>(digit);
        else if (digit != u'0')
            moreFollows_ = true;
    }

    bool isZero() const { return count_ == 0; }

    NumberFromText times10ToThe(std::int64_t power) {
        if (isZero())
            return {NumberFromText::number, 0};
        const std::int64_t exponent = exponent_ + power;
        // Far outside, so that the text below stays short; near the bounds the conversion itself decides.
        if (exponent > std::numeric_limits<Double>::max_exponent10 + 1)
            return {NumberFromText::tooLarge, 0};
        if (exponent < std::numeric_limits<Double>::min_exponent10 - 20)
            return {NumberFromText::number, 0};
        if (moreFollows_)
            digits_[count_++] = '1';
        std::array<char, decidingDigits + 16> text{'.'};
        char* end = std::copy_n(digits_.begin(), count_, text.begin() + 1);
        *end++ = 'e';
        end = std::to_chars(end, text.end(), exponent).ptr;
        Double value = 0;
        if (std::from_chars(text.begin(), end, value).ec == std::errc::result_out_of_range) {
            if (exponent > 0)
                return {NumberFromText::tooLarge, 0};
            value = 0;
        }
        return std::isinf(value) ? NumberFromText{NumberFromText::tooLarge, 0}
                                 : NumberFromText{NumberFromText::number, value};
    }

  private:
    static constexpr std::size_t decidingDigits = 768;

    std::array<char, decidingDigits + 1> digits_{};
    std::size_t count_ = 0;
    bool moreFollows_ = false;
    std::int64_t exponent_ = 0;
};

/// Takes the text apart from its front.
class Reader {
  public:
    explicit Reader(StringView text) : rest_(text) {}

    bool atEnd() const { return rest_.empty(); }
    bool atDigit() const { return !atEnd() && isDigit(rest_.front()); }
    bool takeOneOf(StringView units) {
        if (atEnd() || units.find(rest_.front()) == StringView::npos)
            return false;
        rest_.remove_prefix(1);
        return true;
    }
    char16_t take() {
        const char16_t unit = rest_.front();
        rest_.remove_prefix(1);
        return unit;
    }
    void skipBlanks() { rest_ = trimmed(rest_); }
    StringView rest() const { return rest_; }

  private:
    StringView rest_;
};

/// Past the length of any text, so that it decides whatever digits stand before it.
constexpr std::int64_t endlessExponent = 100'000'000'000'000'000;

std::int64_t readExponent(Reader& reader) {
    std::int64_t exponent = 0;
    while (reader.atDigit())
        exponent = std::min(exponent * 10 + (reader.take() - u'0'), endlessExponent);
    return exponent;
}

constexpr unsigned noDigit = 99;

constexpr unsigned valueOfDigit(char16_t unit) {
    if (isDigit(unit))
        return unit - u'0';
    if (unit >= u'A' && unit <= u'F')
        return unit - u'A' + 10U;
    if (unit >= u'a' && unit <= u'f')
        return unit - u'a' + 10U;
    return noDigit;
}

/// The part behind "&H" or "&O": the 32 bits of a Long, the highest of them its sign.
NumberFromText bitsFromText(StringView digits, unsigned base) {
    std::uint64_t bits = 0;
    bool tooLarge = false;
    for (const char16_t unit : digits) {
        const unsigned value = valueOfDigit(unit);
        if (value >= base)
            return {NumberFromText::notANumber, 0};
        bits = bits * base + value;
        tooLarge = tooLarge || bits > std::numeric_limits<std::uint32_t>::max();
        bits &= std::numeric_limits<std::uint32_t>::max();
    }
    if (digits.empty())
        return {NumberFromText::notANumber, 0};
    if (tooLarge)
        return {NumberFromText::tooLarge, 0};
    return {NumberFromText::number, static_cast<Double>(static_cast<Long>(bits))};
}

} // namespace

NumberFromText readNumber(StringView text, NumberMarks marks) {
    Reader reader(trimmed(text));
    if (reader.takeOneOf(u"&")) {
        if (reader.takeOneOf(u"Hh"))
            return bitsFromText(reader.rest(), 16);
        if (reader.takeOneOf(u"Oo"))
            return bitsFromText(reader.rest(), 8);
        return {NumberFromText::notANumber, 0};
    }
    const bool negative = reader.takeOneOf(u"-");
    if (!negative)
        reader.takeOneOf(u"+");
    reader.skipBlanks();

    Significand significand;
    bool anyDigit = false;
    bool behindPoint = false;
    while (!reader.atEnd()) {
        if (reader.atDigit()) {
            significand.add(reader.take(), behindPoint);
            anyDigit = true;
        } else if (!behindPoint && reader.rest().front() == marks.decimal) {
            reader.take();
            behindPoint = true;
        } else if (anyDigit && marks.group != noGroupMark && reader.rest().front() == marks.group) {
            reader.take();
        } else {
            break;
        }
    }
    if (!anyDigit)
        return {NumberFromText::notANumber, 0};

    std::int64_t exponent = 0;
    if (reader.takeOneOf(u"EeDd")) {
        const bool negativeExponent = reader.takeOneOf(u"-");
        if (!negativeExponent)
            reader.takeOneOf(u"+");
        if (!reader.atDigit())
            return {NumberFromText::notANumber, 0};
        exponent = readExponent(reader);
        if (negativeExponent)
            exponent = -exponent;
    }
    if (!reader.atEnd())
        return {NumberFromText::notANumber, 0};
    NumberFromText result = significand.times10ToThe(exponent);
    if (negative && result.value != 0)
        result.value = -result.value;
    return result;
}

std::optional<Double> numberFromText(StringView text) {
    const NumberFromText result = readNumber(text);
    if (result.outcome != NumberFromText::number)
        return std::nullopt;
    return result.value;
}

} // namespace lumtex
