/// Number to text, by rules that no user changes.
#include "values/number_text.h"
#include "values/variant.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace lumtex {

namespace {

/// A positive number as its significant digits, with the first before the point, times ten to the `exponent`.
class Digits {
  public:
    Digits(Double value, int precision) {
        const auto written =
            std::to_chars(text_.begin(), text_.end(), value, std::chars_format::scientific, precision - 1);
        char* const mark = std::find(text_.begin(), written.ptr, 'e');
        // A plus is no part of what from_chars reads.
        std::from_chars(mark[1] == '+' ? mark + 2 : mark + 1, written.ptr, exponent_);
        // Only the digits before the exponent are read from here on.
        static_cast<void>(std::remove(text_.begin(), mark, '.'));
        count_ = precision;
        while (count_ > 1 && text_[static_cast<std::size_t>(count_ - 1)] == '0')
            --count_;
    }

    int count() const { return count_; }
    int exponent() const { return exponent_; }
    /// Appends the digits from `first` up to `end`, with zeros for those past the last.
    void appendTo(String& target, int first, int end) const {
        for (int i = first; i < end; ++i)
            target.push_back(i < count_ ? static_cast<char16_t>(text_[static_cast<std::size_t>(i)]) : u'0');
    }

  private:
    std::array<char, 32> text_{};
    int count_ = 0;
    int exponent_ = 0;
};

void appendExponentForm(String& target, const Digits& digits, char16_t decimalMark) {
    digits.appendTo(target, 0, 1);
    if (digits.count() > 1) {
        target.push_back(decimalMark);
        digits.appendTo(target, 1, digits.count());
    }
    target.append(digits.exponent() < 0 ? u"E-" : u"E+");
    const int exponent = std::abs(digits.exponent());
    if (exponent >= 100)
        target.push_back(static_cast<char16_t>(u'0' + exponent / 100));
    target.push_back(static_cast<char16_t>(u'0' + exponent / 10 % 10));
    target.push_back(static_cast<char16_t>(u'0' + exponent % 10));
}

void appendPlainForm(String& target, const Digits& digits, char16_t decimalMark) {
    const int whole = digits.exponent() + 1;
    if (whole > 0) {
        digits.appendTo(target, 0, whole);
    } else {
        target.push_back(u'0');
    }
    if (digits.count() > whole) {
        target.push_back(decimalMark);
        target.append(static_cast<std::size_t>(std::max(-whole, 0)), u'0');
        digits.appendTo(target, std::max(whole, 0), digits.count());
    }
}

String textOf(Double value, int precision, char16_t decimalMark) {
    if (std::isnan(value))
        return u"1.#QNAN";
    if (std::isinf(value))
        return value < 0 ? u"-1.#INF" : u"1.#INF";
    if (value == 0)
        return u"0";
    const Digits digits(std::fabs(value), precision);
    String text;
    if (value < 0)
        text.push_back(u'-');
    // The plain form shows at most `precision` digits before the point, and as many behind it.
    const int decimals = digits.count() - 1 - digits.exponent();
    if (digits.exponent() < precision && decimals <= precision)
        appendPlainForm(text, digits, decimalMark);
    else
        appendExponentForm(text, digits, decimalMark);
    return text;
}

} // namespace

String textFromNumber(Double value) {
    return textFromNumber(value, u'.');
}
String textFromNumber(Single value) {
    return textFromNumber(value, u'.');
}
String textFromNumber(Double value, char16_t decimalMark) {
    return textOf(value, 15, decimalMark);
}
String textFromNumber(Single value, char16_t decimalMark) {
    return textOf(static_cast<Double>(value), 7, decimalMark);
}

} // namespace lumtex
